#include "driver/widgets/checkboxex.h"

#include "common/servicesettingsfile.h"

#include <QMessageBox>

CheckBoxEx::CheckBoxEx(const QString& label, const QString& keyPath, const QString& subKey, const QString& valueName,
                       QWidget* parent)
    : QCheckBox(label, parent)
    , m_keyPath(keyPath)
    , m_subKey(subKey)
    , m_valueName(valueName)
{
    read();
    connect(this, &QCheckBox::clicked, this, &CheckBoxEx::onClicked);
}

QString CheckBoxEx::key() const
{
    return m_subKey + QLatin1Char('/') + m_valueName;
}

void CheckBoxEx::read()
{
    const ServiceSettingsFile settings(m_keyPath);
    quint64 value = 0;
    const Result read = settings.readNumber(key(), 0, value);
    setChecked(read.isSuccess() && value != 0);
    const bool writable = settings.isWritable();
    setEnabled(writable);
    if (!settings.problem().isSuccess())
        setToolTip(settings.problem().text());
    else if (!read.isSuccess())
        setToolTip(read.text());
    else if (!writable)
        setToolTip(tr("Restart with elevated privileges!"));
    else
        setToolTip(QString());
}

void CheckBoxEx::onClicked()
{
    ServiceSettingsFile settings(m_keyPath);
    const Result written = settings.write(key(), isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
    if (!written.isSuccess())
        QMessageBox::warning(this, tr("Failed"), written.text());
    read(); // what the file holds now
}
