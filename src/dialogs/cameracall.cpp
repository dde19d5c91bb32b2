#include "dialogs/cameracall.h"

#include <cirro_api.h>

Result CameraCall::failed(int code, const QString& what)
{
    if (isUnsupported(code))
        return {code, tr("%1\nThe function is not supported by the installed driver (return code: %2).")
                          .arg(what)
                          .arg(code)};
    return {code, tr("%1\nReturn code: %2").arg(what).arg(code)};
}

Result CameraCall::notConfirmed(const QString& what)
{
    return {PV_ERR_GENERAL, tr("%1\nThe camera accepted the value but reads back another one.").arg(what)};
}

QString CameraCall::unsupportedText()
{
    return tr("not supported by the installed driver");
}

Result CameraCall::command(quint32 handle, quint32 command, const QString& what)
{
    const std::int32_t code = pv_CameraCommand(handle, command, nullptr, 0);
    return code == PV_OK ? Result() : failed(code, what);
}

Result CameraCall::command(quint32 handle, quint32 command, quint32 parameter, const QString& what)
{
    const std::int32_t code = pv_CameraCommand(handle, command, &parameter, sizeof parameter);
    return code == PV_OK ? Result() : failed(code, what);
}
