#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

class Camera;

// What the status line says about a camera: one message with its colour, the
// picture of the camera's family, and a warning for models the driver no
// longer supports. Reads only the camera record; never calls the driver.
struct StatusAssessment
{
    QString message; // empty: the status line stays empty
    QColor colour;
    QString picture; // ":/images/..."; empty: keep the picture shown
    bool clearsPicture = false; // no picture fits, and none of another camera may stay
    QString unsupportedWarning;

    static StatusAssessment of(const Camera* camera, const QStringList& unsupportedModels);
    static QString pictureOf(const Camera& camera);
    // "<font color='%1'>%2</font>" around the message, which is plain text.
    QString coloured() const;
    static QString fontColoured(const QString& colourName, const QString& text);
};

class StatusTexts final
{
    Q_DECLARE_TR_FUNCTIONS(StatusTexts)

public:
    static QString productLine() { return QStringLiteral("Parvel Cirro"); }
    static QString statusOf(quint32 deviceId, const QString& reason);
    static QString configuredCorrectly(quint32 deviceId);
    static QString lowerSpeed(quint32 deviceId);
};
