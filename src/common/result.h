#pragma once

#include <QString>

#include <utility>

// What an operation that can fail reports: success, or a non-zero code with a
// translated text that says what failed, for the message box of the calling
// dialog. A refusal of the camera driver carries the camera API's return code;
// a failure on the host carries one of the HostError codes.
class Result final
{
public:
    Result() = default; // success
    Result(int code, QString text)
        : m_code(code)
        , m_text(std::move(text))
    {
    }

    bool isSuccess() const { return m_code == 0; }
    int code() const { return m_code; }
    // Empty on success.
    QString text() const { return m_text; }

private:
    int m_code = 0;
    QString m_text;
};

// Failures outside the camera driver. The camera API's own codes are -1 and
// 101 upwards, so the two never meet.
namespace HostError {

enum Code : int {
    UnknownInterface = 1,
    InvalidAddress = 2,
    InvalidNetmask = 3,
    PermissionDenied = 4,
    NotSupported = 5,
    NetworkManagerFailed = 6,
    SystemCallFailed = 7,
    NotWritable = 8,
    ServiceNotInstalled = 9,
    ServiceControlFailed = 10,
    InterfaceDown = 11,
    NoAdapterAddress = 12,
    // An ARP probe refused before anything was sent: the target is not a
    // usable host address of the adapter's subnet.
    TargetRefused = 13,
    // A configuration file that is not a regular file, too large, or does
    // not parse.
    UnreadableFile = 14,
    // What a device reports after a change differs from what was written.
    VerificationFailed = 15,
    // A serial port that stayed silent, or answered something unexpected.
    NoAnswer = 16,
    UnexpectedAnswer = 17,
    // Nobody answered an ARP probe in time. The value is what Windows' SendARP
    // reports for the same case, and what the free-address search takes as
    // "free".
    NoArpReply = 67,
};

} // namespace HostError
