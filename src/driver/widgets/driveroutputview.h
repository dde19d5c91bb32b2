#pragma once

#include "driver/driveroutput.h"

#include <QDialog>
#include <QFutureWatcher>

class QLabel;
class QPlainTextEdit;
class QPushButton;

// The recent debug output of one camera driver, read on a worker thread (the
// journal may take a moment) and shown read-only, newest line last.
class DriverOutputView final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DriverOutputView)

public:
    DriverOutputView(DriverOutput::Driver driver, QWidget* parent);
    ~DriverOutputView() override;

public slots:
    void refresh();

private:
    void display(const DriverOutput::Recent& recent);

    DriverOutput::Driver m_driver;
    QLabel* m_source = nullptr;
    QPlainTextEdit* m_lines = nullptr;
    QPushButton* m_refresh = nullptr;
    QFutureWatcher<DriverOutput::Recent> m_reading;
};
