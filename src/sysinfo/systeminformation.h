#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// The host's operating-system and processor data. The fields keep the names
// of the records that other systems report them in, so that files written on
// either stay readable on the other; which Linux value each holds is said
// beside it.
struct SystemInformation
{
    QString buildNumber;          // kernel release, uname -r: "6.1.0-18-amd64"
    int majorVersion = 0;         // kernel version's first number
    int minorVersion = 0;         // and its second
    QString platformId;           // kernel name, uname -s: "Linux"
    QString activeProcessorMask;  // processors the process may run on (sched_getaffinity) as a list: "0-3,6"
    int numberOfProcessors = 0;   // online processors, sysconf(_SC_NPROCESSORS_ONLN)
    int processorArchitecture = unknownArchitecture; // numeric code of uname -m, see architectureCode()
    QString csdVersion;           // PRETTY_NAME of /etc/os-release
    QString hostName;             // uname -n
    QString buildArchitecture;    // the processor the program was built for: "x86_64"

    static constexpr int unknownArchitecture = 0xFFFF;

    static SystemInformation read(const QString& osReleasePath = QStringLiteral("/etc/os-release"));

    // The codes other systems use for processor architectures: 0 x86, 5 ARM,
    // 9 x64, 12 ARM64; unknownArchitecture for anything else.
    static int architectureCode(const QString& machine);
    static QString architectureName(int code);
    // Ascending processor numbers as ranges: {0,1,2,3,6} -> "0-3,6".
    static QString processorListText(const std::vector<int>& processors);
    // PRETTY_NAME, else NAME and VERSION, of an os-release file's content.
    static QString prettyName(const QByteArray& osRelease);
    // {6, 1} of "6.1.0-18-amd64".
    static std::pair<int, int> kernelVersion(const QString& release);
};
