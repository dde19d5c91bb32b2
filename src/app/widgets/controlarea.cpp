#include "app/widgets/controlarea.h"

#include "app/identity.h"
#include "app/widgets/commandregistry.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>

namespace {

using Command = ControlStates::Command;

// The grid, row by row: the check boxes, then the buttons in two columns.
const QList<QPair<Command, Command>> buttonRows{
    {Command::GeneralInformation, Command::CameraInformation},
    {Command::SupportFile, Command::EthService},
    {Command::AdditionalFunctions, Command::AutomaticEthConfiguration},
    {Command::UploadFirmware, Command::ManualEthConfiguration}};

} // namespace

ControlArea::ControlArea(CommandRegistry& commands, QWidget* parent)
    : QGroupBox(parent)
    , m_commands(commands)
{
    setObjectName(QStringLiteral("controlArea"));
    m_expertMode = new QCheckBox(this);
    m_expertMode->setObjectName(QStringLiteral("expertMode"));
    m_autoRefresh = new QCheckBox(this);
    m_autoRefresh->setObjectName(QStringLiteral("autoRefresh"));
    m_autoRefresh->setEnabled(false);
    addButton("generalInformation", Command::GeneralInformation);
    addButton("cameraInformation", Command::CameraInformation);
    addButton("createSupportFile", Command::SupportFile);
    addButton("ethNetworkService", Command::EthService);
    addButton("additionalFunctions", Command::AdditionalFunctions);
    addButton("automaticEthConfiguration", Command::AutomaticEthConfiguration);
    addButton("uploadStarterFirmware", Command::UploadFirmware);
    addButton("manualEthConfiguration", Command::ManualEthConfiguration);
    // Below the grid, so that a file from another machine can be read.
    addButton("readSupportFile", Command::ReadSupportFile);
    // No place in the grid; it stays hidden.
    addButton("additionalCameraInfo", Command::AdditionalCameraInformation)->hide();
    buildLayout();
    setTabOrder();
}

QPushButton* ControlArea::addButton(const char* objectName, Command command)
{
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(objectName));
    m_commands.bind(button, command);
    m_buttons.insert(command, button);
    return button;
}

void ControlArea::buildLayout()
{
    auto* grid = new QGridLayout(this);
    grid->addWidget(m_expertMode, 0, 0);
    grid->addWidget(m_autoRefresh, 0, 1);
    for (int row = 0; row < buttonRows.size(); ++row) {
        grid->addWidget(m_buttons.value(buttonRows.at(row).first), row + 1, 0);
        grid->addWidget(m_buttons.value(buttonRows.at(row).second), row + 1, 1);
    }
    grid->addWidget(m_buttons.value(Command::ReadSupportFile), buttonRows.size() + 1, 0);
}

void ControlArea::setTabOrder()
{
    const QList<QWidget*> order{m_expertMode,
                                m_autoRefresh,
                                m_buttons.value(Command::GeneralInformation),
                                m_buttons.value(Command::CameraInformation),
                                m_buttons.value(Command::SupportFile),
                                m_buttons.value(Command::EthService),
                                m_buttons.value(Command::ManualEthConfiguration),
                                m_buttons.value(Command::AdditionalFunctions)};
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
}

void ControlArea::retranslate()
{
    setTitle(tr("Control area"));
    m_expertMode->setText(tr("Expert mode"));
    m_expertMode->setToolTip(tr("Show/hide detailed information view"));
    m_autoRefresh->setText(tr("Automatic parameter refresh"));
    m_autoRefresh->setToolTip(tr("Enables/Disables the automatic refresh of the detailed information view"));
    const QList<std::tuple<Command, QString, QString>> texts{
        {Command::CameraInformation, tr("Camera information"), tr("Show additional camera information")},
        {Command::GeneralInformation, tr("General information"), tr("Show general information dialog")},
        {Command::UploadFirmware, tr("Upload starter firmware"), tr("Upload a runtime firmware manually")},
        {Command::SupportFile, tr("Create support file"),
         tr("Create a support file with important system\n and %1 information for sending to the %2 support")
             .arg(Identity::productLineName(), Identity::organisationName())},
        {Command::EthService, tr("ETH network service"), tr("Show network configuration dialog")},
        {Command::AdditionalFunctions, tr("Additional functions"), QString()},
        {Command::ManualEthConfiguration, tr("Manual ETH configuration"), tr("Show network device configuration dialog")},
        {Command::AutomaticEthConfiguration, tr("Automatic ETH configuration"), tr("Automatic network configuration")},
        {Command::ReadSupportFile, tr("Read support file"), QString()},
        {Command::AdditionalCameraInformation, tr("Additional Camera Info"), tr("Show additional camera information")}};
    for (const auto& [command, text, tip] : texts) {
        QPushButton* button = m_buttons.value(command);
        button->setText(text);
        button->setToolTip(tip);
    }
}
