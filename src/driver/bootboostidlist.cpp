#include "driver/bootboostidlist.h"

#include "driver/bootboost.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

using Step = BootBoostIdList::Step;

bool inRange(unsigned value)
{
    return value >= BootBoostIdList::lowest && value <= BootBoostIdList::highest;
}

Step single(const QString& part)
{
    bool ok = false;
    const qulonglong value = part.toULongLong(&ok, 10);
    if (!ok) {
        // Digits only, but too many for any number: out of range all the same.
        const bool digits = std::all_of(part.begin(), part.end(), [](QChar ch) { return ch.isDigit(); });
        return {digits ? Step::Kind::OutOfRange : Step::Kind::NotANumber, 0, part};
    }
    if (!inRange(unsigned(std::min<qulonglong>(value, BootBoostIdList::highest + 1))))
        return {Step::Kind::OutOfRange, 0, part};
    return {Step::Kind::Id, unsigned(value), part};
}

void appendRange(const QString& part, std::vector<Step>& steps)
{
    const QStringList ends = part.split(QLatin1Char('-'));
    if (ends.size() != 2)
        return;
    bool firstOk = false;
    bool lastOk = false;
    const unsigned first = ends.at(0).trimmed().toUInt(&firstOk, 10);
    const unsigned last = ends.at(1).trimmed().toUInt(&lastOk, 10);
    if (!firstOk || !lastOk || !inRange(first) || !inRange(last) || first > last)
        return;
    for (unsigned id = first; id <= last; ++id)
        steps.push_back({Step::Kind::Id, id, part});
}

} // namespace

std::vector<BootBoostIdList::Step> BootBoostIdList::parse(const QString& text)
{
    std::vector<Step> steps;
    for (const QString& rawPart : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString part = rawPart.trimmed();
        if (part.isEmpty())
            continue;
        if (part.contains(QLatin1Char('-')) && !part.startsWith(QLatin1Char('-')))
            appendRange(part, steps);
        else
            steps.push_back(single(part));
    }
    return steps;
}

Result BootBoostIdList::apply(const std::vector<Step>& steps, bool add, const Refusal& refused)
{
    const BootBoost::Change change = add ? BootBoost::Change::Add : BootBoost::Change::Remove;
    QStringList failedIds;
    int lastCode = 0;
    for (const Step& step : steps) {
        if (step.kind != Step::Kind::Id) {
            refused(step);
            continue;
        }
        const Result sent = BootBoost::change(change, std::uint8_t(step.id));
        if (!sent.isSuccess()) {
            failedIds << QString::number(step.id);
            lastCode = sent.code();
        }
    }
    if (failedIds.isEmpty())
        return {};
    const QString text = add ? QCoreApplication::translate("BootBoostIdList", "The IDs %1 could not be added to the boot boost list.\nReturn code: %2")
                             : QCoreApplication::translate("BootBoostIdList", "The IDs %1 could not be removed from the boot boost list.\nReturn code: %2");
    return {lastCode, text.arg(failedIds.join(QStringLiteral(", "))).arg(lastCode)};
}

QString BootBoostIdList::displayText(std::vector<std::uint8_t> ids)
{
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    QStringList runs;
    for (std::size_t first = 0; first < ids.size();) {
        std::size_t last = first;
        while (last + 1 < ids.size() && ids[last + 1] == ids[last] + 1)
            ++last;
        runs << (first == last ? QStringLiteral("%1").arg(ids[first])
                               : QStringLiteral("%1 - %2").arg(ids[first]).arg(ids[last]));
        first = last + 1;
    }
    return runs.join(QStringLiteral(", "));
}
