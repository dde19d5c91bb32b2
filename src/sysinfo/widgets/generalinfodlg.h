#pragma once

#include "sysinfo/generalinformation.h"

#include <QDialog>
#include <QFutureWatcher>

class AboutPage;
class InfoTreeView;
class QLabel;
class QTabWidget;
class ServiceManager;
class UpdatesPage;

// "General information": the program, the camera driver's components, the USB
// controllers, the network adapters and the check for updates, one page each,
// and all of it as text for a support request. The machine is read in the
// background when the dialog opens.
class GeneralInfoDlg final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GeneralInfoDlg)

public:
    // language: the program's current language ("de"), for the update notes.
    GeneralInfoDlg(const QString& language, const ServiceManager& services, QWidget* parent = nullptr);
    ~GeneralInfoDlg() override;

    // Every page as indented text; the pages still being read say so.
    QString text() const;
    bool isReading() const { return !m_info.hostRead; }
    UpdatesPage* updatesPage() const { return m_updates; }

public slots:
    void onCopy();

private:
    InfoTreeView* addTreePage(const QString& objectName, const QString& title);
    void onHostRead();

    QTabWidget* m_pages = nullptr;
    AboutPage* m_about = nullptr;
    InfoTreeView* m_drivers = nullptr;
    InfoTreeView* m_usb = nullptr;
    InfoTreeView* m_adapters = nullptr;
    UpdatesPage* m_updates = nullptr;
    QLabel* m_copied = nullptr;
    GeneralInformation m_info;
    QFutureWatcher<GeneralInformation> m_reading;
};
