#pragma once

// A scenario of the simulated driver with many cameras: USB cameras first
// (device IDs 0-999), the rest GigE cameras on one adapter.

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

inline QByteArray benchmarkFleet(int cameras, int usbCameras)
{
    QJsonArray list;
    for (int i = 0; i < cameras; ++i) {
        const bool usb = i < usbCameras;
        QJsonObject camera{{"kind", usb ? "usb" : "eth"},
                           {"serial", QStringLiteral("BENCH%1").arg(i, 5, 10, QLatin1Char('0'))},
                           {"fullModel", usb ? "CRU3-50M" : "CRG5-12C"},
                           {"typeCode", usb ? 98 : 138}};
        if (!usb) {
            camera["adapter"] = "simnet0";
            camera["mac"] = QStringLiteral("00:1c:c1:01:%1:%2")
                                .arg(i / 256, 2, 16, QLatin1Char('0'))
                                .arg(i % 256, 2, 16, QLatin1Char('0'));
        }
        list.append(camera);
    }
    const QJsonObject adapter{{"name", "simnet0"},     {"mac", "02:c1:5e:00:09:01"}, {"ip", "192.168.90.1"},
                              {"mask", "255.255.0.0"}, {"linkSpeed", 1000}};
    return QJsonDocument(QJsonObject{{"adapters", QJsonArray{adapter}}, {"cameras", list}})
        .toJson(QJsonDocument::Compact);
}
