#include "driver/widgets/driveroutputview.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtConcurrent>

DriverOutputView::DriverOutputView(DriverOutput::Driver driver, QWidget* parent)
    : QDialog(parent)
    , m_driver(driver)
{
    setObjectName(QStringLiteral("driverOutputView"));
    setWindowTitle(tr("Recent output of %1").arg(DebugMask::service(driver)));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    m_source = new QLabel(this);
    m_source->setObjectName(QStringLiteral("source"));
    m_source->setWordWrap(true);
    m_source->setTextFormat(Qt::PlainText);
    m_lines = new QPlainTextEdit(this);
    m_lines->setObjectName(QStringLiteral("lines"));
    m_lines->setReadOnly(true);
    m_lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_refresh = buttons->addButton(tr("Refresh"), QDialogButtonBox::ActionRole);
    m_refresh->setObjectName(QStringLiteral("refresh"));
    connect(m_refresh, &QPushButton::clicked, this, &DriverOutputView::refresh);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(m_source);
    layout->addWidget(m_lines, 1);
    layout->addWidget(buttons);
    resize(900, 480);
    connect(&m_reading, &QFutureWatcher<DriverOutput::Recent>::finished, this,
            [this] { display(m_reading.result()); });
    refresh();
}

DriverOutputView::~DriverOutputView()
{
    m_reading.waitForFinished();
}

void DriverOutputView::refresh()
{
    if (m_reading.isRunning())
        return;
    m_refresh->setEnabled(false);
    m_source->setText(tr("Reading ..."));
    const DriverOutput::Driver driver = m_driver;
    m_reading.setFuture(QtConcurrent::run([driver] { return DriverOutput::recent(driver); }));
}

void DriverOutputView::display(const DriverOutput::Recent& recent)
{
    m_refresh->setEnabled(true);
    QStringList notes;
    if (!recent.result.isSuccess())
        notes << recent.result.text();
    else if (recent.lines.isEmpty())
        notes << tr("No lines in %1 yet. Switch categories on in the debug output mask and use the cameras.")
                     .arg(recent.source);
    else
        notes << tr("The last %n line(s) of %1, newest last:", nullptr, recent.lines.size()).arg(recent.source);
    notes << recent.problems;
    m_source->setText(notes.join(QLatin1Char('\n')));
    m_lines->setPlainText(recent.lines.join(QLatin1Char('\n')));
    m_lines->verticalScrollBar()->setValue(m_lines->verticalScrollBar()->maximum());
}
