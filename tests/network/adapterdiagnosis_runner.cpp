// Diagnoses host adapters and prints the results as one JSON array, so that
// tst_adapterdiagnosis can run the host back-end inside network namespaces of
// its own:
//   adapterdiagnosis_runner <rmem_max> <interface>[@<camera address>]...
// <rmem_max> stands in for net.core.rmem_max, a setting the test must not
// change; every other value comes from the namespace's own /proc/sys.
#include "network/adapterdiagnosis.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>

#include <cstdio>

namespace {

template <typename Enum>
QString keyOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(int(value)));
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s <rmem_max> <interface>[@<camera address>]...\n", argv[0]);
        return 2;
    }
    const QByteArray receiveBuffer(argv[1]);
    const auto readSetting = [&](const QString& path, QByteArray* contents) {
        if (path == QLatin1String("net/core/rmem_max")) {
            *contents = receiveBuffer;
            return Result();
        }
        return AdapterDiagnosis::readKernelSetting(path, contents);
    };

    QJsonArray results;
    for (int i = 2; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        const QString interfaceName = argument.section(QLatin1Char('@'), 0, 0);
        const QHostAddress camera(argument.section(QLatin1Char('@'), 1));
        const AdapterDiagnosis diagnosis = AdapterDiagnosis::diagnoseHost(interfaceName, camera, readSetting);
        QJsonArray findings;
        for (const AdapterFinding& finding : diagnosis.findings()) {
            findings.append(QJsonObject{{"severity", keyOf(finding.severity())},
                                        {"check", keyOf(finding.check())},
                                        {"problem", finding.problem()},
                                        {"remedy", finding.remedy()}});
        }
        results.append(QJsonObject{{"argument", argument},
                                   {"code", diagnosis.result().code()},
                                   {"status", diagnosis.status()},
                                   {"findings", findings}});
    }
    std::fputs(QJsonDocument(results).toJson(QJsonDocument::Compact).constData(), stdout);
    return 0;
}
