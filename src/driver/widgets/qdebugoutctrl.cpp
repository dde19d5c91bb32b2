#include "driver/widgets/qdebugoutctrl.h"

#include "driver/driverconfiguration.h"
#include "driver/driveroutput.h"
#include "driver/widgets/driveroutputview.h"
#include "driver/widgets/settingsfilenotice.h"
#include "driversettings/debugcategories.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QVBoxLayout>

QDebugOutCtrl::QDebugOutCtrl(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("debugOutCtrl"));
    setWindowTitle(tr("Debug output"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new SettingsFileNotice(this));
    layout->addWidget(buildTypeGroup());
    layout->addWidget(buildFlagGroup());
    layout->addWidget(buildOutputGroup());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
    onGetMask();
}

QWidget* QDebugOutCtrl::buildTypeGroup()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* type = new QGroupBox(tr("Device type"), row);
    auto* typeLayout = new QHBoxLayout(type);
    m_usb = new QRadioButton(tr("USB"), type);
    m_usb->setObjectName(QStringLiteral("usb"));
    m_usb->setChecked(true);
    m_eth = new QRadioButton(tr("ETH"), type);
    m_eth->setObjectName(QStringLiteral("eth"));
    typeLayout->addWidget(m_usb);
    typeLayout->addWidget(m_eth);
    connect(m_usb, &QRadioButton::toggled, this, &QDebugOutCtrl::onTypeChanged);
    connect(m_eth, &QRadioButton::toggled, this, &QDebugOutCtrl::onTypeChanged);

    m_mask = new QLineEdit(row);
    m_mask->setObjectName(QStringLiteral("mask"));
    m_mask->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("0[xX][0-9a-fA-F]{0,16}")), m_mask));
    m_mask->setMinimumWidth(m_mask->fontMetrics().horizontalAdvance(DebugMask::text(0)) + 16);
    m_mask->setToolTip(tr("The mask as a hexadecimal number; press Enter to set the boxes from it."));
    connect(m_mask, &QLineEdit::returnPressed, this, &QDebugOutCtrl::onMaskEdited);
    auto* write = new QPushButton(tr("Write"), row);
    write->setObjectName(QStringLiteral("write"));
    write->setAutoDefault(false);
    auto* read = new QPushButton(tr("Read"), row);
    read->setObjectName(QStringLiteral("read"));
    read->setAutoDefault(false);
    connect(write, &QPushButton::clicked, this, &QDebugOutCtrl::onSetMask);
    connect(read, &QPushButton::clicked, this, &QDebugOutCtrl::onGetMask);
    layout->addWidget(type);
    layout->addWidget(m_mask, 1);
    layout->addWidget(write);
    layout->addWidget(read);
    return row;
}

QWidget* QDebugOutCtrl::buildFlagGroup()
{
    auto* group = new QGroupBox(tr("Configuration flags"), this);
    auto* grid = new QGridLayout(group);
    for (int bit = 0; bit < DebugCategories::count; ++bit) {
        auto* box = new QCheckBox(tr("Bit %1").arg(bit, 2, 10, QLatin1Char('0')), group);
        box->setText(tr(DebugCategories::name(bit)));
        box->setToolTip(tr("Bit %1").arg(bit, 2, 10, QLatin1Char('0')));
        box->setObjectName(QStringLiteral("bit%1").arg(bit));
        connect(box, &QCheckBox::toggled, this, &QDebugOutCtrl::onBit);
        grid->addWidget(box, bit % 16, bit / 16);
        m_bits[std::size_t(bit)] = box;
    }
    return group;
}

QWidget* QDebugOutCtrl::buildOutputGroup()
{
    auto* group = new QGroupBox(tr("Driver output"), this);
    auto* layout = new QHBoxLayout(group);
    m_destination = new QLabel(group);
    m_destination->setObjectName(QStringLiteral("destination"));
    m_destination->setWordWrap(true);
    m_destination->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* show = new QPushButton(tr("Show recent output"), group);
    show->setObjectName(QStringLiteral("showRecentOutput"));
    show->setAutoDefault(false);
    connect(show, &QPushButton::clicked, this, &QDebugOutCtrl::onShowRecentOutput);
    layout->addWidget(m_destination, 1);
    layout->addWidget(show);
    return group;
}

void QDebugOutCtrl::onShowRecentOutput()
{
    DriverOutputView view(driver(), this);
    view.exec();
}

DebugMask::Driver QDebugOutCtrl::driver() const
{
    return m_usb->isChecked() ? DebugMask::Driver::Usb : DebugMask::Driver::Eth;
}

quint64 QDebugOutCtrl::maskOfBoxes() const
{
    quint64 mask = 0;
    for (int bit = 0; bit < DebugCategories::count; ++bit) {
        if (m_bits[std::size_t(bit)]->isChecked())
            mask |= DebugCategories::bit(bit);
    }
    return mask;
}

void QDebugOutCtrl::showMask(quint64 mask)
{
    m_mask->setText(DebugMask::text(mask));
}

void QDebugOutCtrl::showBoxes(quint64 mask)
{
    for (int bit = 0; bit < DebugCategories::count; ++bit) {
        QSignalBlocker blocker(m_bits[std::size_t(bit)]);
        m_bits[std::size_t(bit)]->setChecked((mask & DebugCategories::bit(bit)) != 0);
    }
    showMask(mask);
}

void QDebugOutCtrl::onBit()
{
    showMask(maskOfBoxes());
}

void QDebugOutCtrl::onGetMask()
{
    m_destination->setText(DriverOutput::destination(driver()));
    quint64 mask = 0;
    const Result read = DebugMask::read(driver(), mask);
    m_mask->setToolTip(read.text());
    showBoxes(mask);
}

void QDebugOutCtrl::onSetMask()
{
    const quint64 mask = maskOfBoxes();
    const Result written = DebugMask::write(driver(), mask);
    if (written.code() == HostError::NotWritable) {
        QMessageBox::critical(this, tr("Permission error"),
                              tr("Can't write value. Destination is write-protected. If you have insufficient "
                                 "permission, please run under elevated mode!"),
                              QMessageBox::Ok);
    } else if (!written.isSuccess()) {
        QMessageBox::critical(this, tr("Error"), written.text(), QMessageBox::Ok);
    } else {
        // The drivers take a new mask when they reread their settings.
        const Result fetched = DriverConfiguration::fetchRegistryValues();
        if (!fetched.isSuccess())
            QMessageBox::warning(this, tr("Warning"), fetched.text());
    }
    showMask(mask);
}

void QDebugOutCtrl::onTypeChanged(bool toggled)
{
    if (toggled)
        onGetMask();
}

void QDebugOutCtrl::onMaskEdited()
{
    quint64 mask = 0;
    if (!DebugMask::parse(m_mask->text(), mask))
        return;
    showBoxes(mask);
}
