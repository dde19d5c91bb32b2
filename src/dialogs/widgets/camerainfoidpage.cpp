#include "dialogs/widgets/camerainfoidpage.h"

#include "dialogs/cameraidaccess.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

CameraInfoIdPage::CameraInfoIdPage(quint32 handle, quint32 deviceId, QList<std::shared_ptr<Camera>> listed,
                                   QWidget* parent)
    : CameraInfoPage(handle, parent)
    , m_deviceId(deviceId)
    , m_listed(std::move(listed))
{
    setObjectName(QStringLiteral("cameraIdPage"));
    m_current = new QLabel(content());
    m_current->setObjectName(QStringLiteral("currentId"));
    m_newId = new QSpinBox(content());
    m_newId->setObjectName(QStringLiteral("newId"));
    m_newId->setRange(PV_CAMERA_ID_MIN, PV_CAMERA_ID_MAX);
    m_write = new QPushButton(tr("Write"), content());
    m_write->setObjectName(QStringLiteral("writeId"));
    m_write->setAutoDefault(false);
    m_warning = new QLabel(content());
    m_warning->setObjectName(QStringLiteral("idWarning"));
    m_warning->setWordWrap(true);
    m_warning->setStyleSheet(QStringLiteral("color: #b00000"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_newId);
    row->addWidget(m_write);
    row->addStretch(1);
    auto* outer = new QVBoxLayout(content());
    auto* form = new QFormLayout;
    outer->addLayout(form);
    form->addRow(tr("Current camera ID:"), m_current);
    form->addRow(tr("New camera ID:"), row);
    auto* hint = new QLabel(tr("The camera list shows the new ID as soon as the driver reports the change."), content());
    hint->setWordWrap(true);
    outer->addWidget(m_warning);
    outer->addWidget(hint);
    outer->addStretch(1);
    connect(m_write, &QPushButton::clicked, this, &CameraInfoIdPage::onWrite);
    connect(m_newId, qOverload<int>(&QSpinBox::valueChanged), this, &CameraInfoIdPage::onIdChanged);
}

Result CameraInfoIdPage::load()
{
    quint32 id = 0;
    const Result result = CameraIdAccess::read(handle(), &id);
    if (result.isSuccess())
        showCurrent(id);
    return loaded(result);
}

void CameraInfoIdPage::showCurrent(quint32 id)
{
    m_current->setText(QString::number(id));
    m_newId->setValue(int(id));
    onIdChanged(int(id));
}

void CameraInfoIdPage::onIdChanged(int id)
{
    const std::optional<quint32> holder = CameraIdAccess::holderOf(m_listed, m_deviceId, quint32(id));
    m_warning->setText(holder ? tr("Camera %1 in the list has the ID %2 already. Two cameras with the same ID "
                                   "can't be told apart by their ID.")
                                    .arg(*holder)
                                    .arg(id)
                              : QString());
}

void CameraInfoIdPage::onWrite()
{
    const quint32 id = quint32(m_newId->value());
    if (report(CameraIdAccess::write(handle(), id), m_write))
        showCurrent(id);
}
