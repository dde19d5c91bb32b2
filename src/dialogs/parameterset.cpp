#include "dialogs/parameterset.h"

#include "dialogs/cameracall.h"

#include <cstring>

namespace {

template <std::size_t N>
QString fixedText(const char (&text)[N])
{
    return QString::fromLatin1(text, int(strnlen(text, N)));
}

template <std::size_t N>
bool copyText(char (&target)[N], const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    if (std::size_t(bytes.size()) >= N)
        return false;
    std::memcpy(target, bytes.constData(), std::size_t(bytes.size()));
    return true;
}

} // namespace

ParameterSet ParameterSet::fromBlock(const pv_ParameterSet& block)
{
    ParameterSet set;
    set.model = fixedText(block.model);
    const quint32 count = qMin<quint32>(block.count, PV_PARAMSET_MAX_VALUES);
    for (quint32 i = 0; i < count; ++i)
        set.values.append({fixedText(block.values[i].name), block.values[i].value});
    return set;
}

bool ParameterSet::toBlock(pv_ParameterSet* block) const
{
    *block = pv_ParameterSet{};
    if (values.size() > int(PV_PARAMSET_MAX_VALUES) || !copyText(block->model, model))
        return false;
    block->count = quint32(values.size());
    for (int i = 0; i < values.size(); ++i) {
        if (!copyText(block->values[i].name, values.at(i).first))
            return false;
        block->values[i].value = values.at(i).second;
    }
    return true;
}

QString ParameterSets::setName(quint32 index)
{
    return index == PV_PARAMSET_FACTORY ? tr("Factory default") : tr("User set %1").arg(index);
}

Result ParameterSets::read(quint32 handle, quint32 index, ParameterSet* set)
{
    pv_ParameterSet block{};
    const int code = CameraCall::readFeature(handle, PV_FEATURE_PARAMETER_SET, index, block);
    if (code != PV_OK)
        return CameraCall::failed(code, tr("The parameter set \"%1\" could not be read.").arg(setName(index)));
    *set = ParameterSet::fromBlock(block);
    return {};
}

Result ParameterSets::write(quint32 handle, quint32 index, const ParameterSet& set)
{
    const QString what = tr("The parameter set \"%1\" could not be written.").arg(setName(index));
    pv_ParameterSet block;
    if (!set.toBlock(&block))
        return {PV_ERR_INVALID_PARAMETER, tr("%1\nIt has too many values or too long names.").arg(what)};
    return CameraCall::writeConfirmed(handle, PV_FEATURE_PARAMETER_SET, index, block, what,
                                      [](const pv_ParameterSet& written, const pv_ParameterSet& back) {
                                          return ParameterSet::fromBlock(written) == ParameterSet::fromBlock(back);
                                      });
}

Result ParameterSets::startupSet(quint32 handle, quint32* index)
{
    const int code = CameraCall::readFeature(handle, PV_FEATURE_STARTUP_SET, 0, *index);
    return code == PV_OK ? Result() : CameraCall::failed(code, tr("The start-up set could not be read."));
}

Result ParameterSets::setStartupSet(quint32 handle, quint32 index)
{
    return CameraCall::writeConfirmed(handle, PV_FEATURE_STARTUP_SET, 0, index,
                                      tr("\"%1\" could not be made the start-up set.").arg(setName(index)),
                                      [](quint32 written, quint32 back) { return written == back; });
}

Result ParameterSets::saveCurrent(quint32 handle, quint32 index)
{
    const QString what = tr("The current settings could not be saved into \"%1\".").arg(setName(index));
    if (Result saved = CameraCall::command(handle, PV_CAMCMD_PARAMSET_SAVE, index, what); !saved.isSuccess())
        return saved;
    ParameterSet stored;
    return read(handle, index, &stored);
}

Result ParameterSets::resetToFactory(quint32 handle)
{
    const QString what = tr("The camera could not be reset to its factory settings.");
    if (Result reset = CameraCall::command(handle, PV_CAMCMD_PARAMSET_FACTORY_RESET, what); !reset.isSuccess())
        return reset;
    quint32 startup = 0;
    if (Result read = startupSet(handle, &startup); !read.isSuccess())
        return read;
    return startup == PV_PARAMSET_FACTORY ? Result() : CameraCall::notConfirmed(what);
}
