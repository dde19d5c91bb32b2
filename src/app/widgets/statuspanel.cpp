#include "app/widgets/statuspanel.h"

#include "app/identity.h"
#include "camera/statusassessment.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMovie>

namespace {

constexpr int busyIndicatorMaxWidth = 38;
constexpr int statusMinimumHeight = 60;
constexpr int cameraPictureSize = 96;

QLabel* wrappingLabel(const char* objectName, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(objectName));
    label->setWordWrap(true);
    return label;
}

} // namespace

StatusPanel::StatusPanel(bool elevated, QWidget* parent)
    : QGroupBox(parent)
{
    setObjectName(QStringLiteral("statusPanel"));
    m_busyIndicator = new QLabel(this);
    m_busyIndicator->setObjectName(QStringLiteral("busyIndicator"));
    m_busyIndicator->setMaximumWidth(busyIndicatorMaxWidth);
    m_busyIndicator->hide();
    m_statusText = wrappingLabel("statusText", this);
    m_statusText->setMinimumHeight(statusMinimumHeight);
    m_secondStatusLine = wrappingLabel("secondStatusLine", this);
    m_secondStatusLine->hide();
    m_adapterAdvice = wrappingLabel("adapterAdvice", this);
    m_adapterAdvice->hide();
    m_networkNote = wrappingLabel("networkNote", this);
    m_networkNote->hide();
    m_cameraPicture = new QLabel(this);
    m_cameraPicture->setObjectName(QStringLiteral("cameraPicture"));
    m_cameraPicture->setFixedSize(cameraPictureSize, cameraPictureSize);
    m_cameraPicture->setAlignment(Qt::AlignCenter);
    if (elevated)
        m_privilegeWarning = wrappingLabel("privilegeWarning", this);

    auto* grid = new QGridLayout(this);
    grid->addWidget(m_busyIndicator, 0, 0);
    grid->addWidget(m_statusText, 0, 1);
    grid->addWidget(m_secondStatusLine, 1, 1);
    grid->addWidget(m_adapterAdvice, 2, 1);
    grid->addWidget(m_networkNote, 3, 1);
    if (m_privilegeWarning)
        grid->addWidget(m_privilegeWarning, 4, 1);
    grid->addWidget(m_cameraPicture, 0, 2, 5, 1, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
}

void StatusPanel::print(const QString& text, const QColor& colour, bool showProgress)
{
    m_statusText->setText(StatusAssessment::fontColoured(colour.name(), text));
    showBusyIndicator(showProgress);
}

void StatusPanel::showBusyIndicator(bool show)
{
    if (show) {
        // Made on first use: decoding the animation costs start-up time.
        if (!m_busyMovie) {
            m_busyMovie = new QMovie(QStringLiteral(":/images/indicator.gif"), QByteArray(), this);
            m_busyIndicator->setMovie(m_busyMovie);
        }
        m_busyMovie->start();
    } else if (m_busyMovie) {
        m_busyMovie->stop();
    }
    m_busyIndicator->setVisible(show);
}

void StatusPanel::showDetails(const StatusAssessment& status, bool hasCamera)
{
    if (!hasCamera || status.clearsPicture)
        m_cameraPicture->clear();
    else if (!status.picture.isEmpty())
        m_cameraPicture->setPixmap(QIcon(status.picture).pixmap(QSize(cameraPictureSize, cameraPictureSize)));
    m_secondStatusLine->setText(StatusAssessment::fontColoured(QStringLiteral("red"), status.unsupportedWarning));
    m_secondStatusLine->setVisible(!status.unsupportedWarning.isEmpty());
}

void StatusPanel::showOutcomeNote(const QString& text, const QColor& colour)
{
    m_networkNote->setText(StatusAssessment::fontColoured(colour.name(), text));
    m_networkNote->setVisible(!text.isEmpty());
}

void StatusPanel::showAdapterAdvice(const QString& text)
{
    m_adapterAdvice->setText(StatusAssessment::fontColoured(QStringLiteral("#b35900"), text));
    m_adapterAdvice->setVisible(!text.isEmpty());
}

void StatusPanel::retranslate()
{
    if (!m_privilegeWarning)
        return;
    m_privilegeWarning->setText(
        QStringLiteral("<b>%1</b>")
            .arg(StatusAssessment::fontColoured(QStringLiteral("#FF0000"),
                              tr("The %1 Camera Manager is running with root privileges!").arg(Identity::makerShortName()))));
}
