#pragma once

#include <QCoreApplication>
#include <QString>

// Outcome of a change to the host's network set-up: 0 on success, else a code
// and a translated text for the message box of the calling dialog.
class NetworkResult final
{
    Q_DECLARE_TR_FUNCTIONS(NetworkResult)

public:
    enum Code : int {
        Success = 0,
        UnknownInterface = 1,
        InvalidAddress = 2,
        InvalidNetmask = 3,
        PermissionDenied = 4,
        NotSupported = 5,
        NetworkManagerFailed = 6,
        SystemCallFailed = 7,
        NotWritable = 8,
    };

    NetworkResult() = default;
    NetworkResult(Code code, const QString& message) : m_code(code), m_message(message) {}

    static NetworkResult unknownInterface(const QString& interfaceName);

    int code() const { return m_code; }
    QString message() const { return m_message; }
    bool isSuccess() const { return m_code == Success; }

private:
    Code m_code = Success;
    QString m_message;
};
