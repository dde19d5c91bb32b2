#pragma once

#include "sysinfo/infonode.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

// What the program is and what it was built from: names and versions, the
// camera API library it runs on, and the licences of the libraries it uses.
struct AboutInformation
{
    Q_DECLARE_TR_FUNCTIONS(AboutInformation)

public:
    struct LicenceNotice
    {
        QString component;
        QString licence;
        QString notice;
    };

    QString productName;
    QString applicationVersion;
    QString apiVersion;        // "4.97.1203"
    QString apiLibrary;        // resolved path of the camera API library
    QString qtVersion;         // the running Qt, and the one it was built against where they differ
    QString buildConfiguration;
    QList<LicenceNotice> licences;

    // The running program's facts; names and version come from the
    // application object.
    static AboutInformation collect();

    // Names and versions, then the licences by name.
    InfoNode outline() const;
    // Names and versions only.
    InfoNode facts() const;
    static QString buildConfigurationText();
    static QList<LicenceNotice> licenceNotices();
};
