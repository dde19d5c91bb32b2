#include "dialogs/widgets/multicastdialog.h"

#include "dialogs/readonlydevicerequest.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

MulticastDialog::MulticastDialog(const Camera& camera, QWidget* parent)
    : QDialog(parent)
    , m_camera(camera)
{
    setObjectName(QStringLiteral("multicastDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Add multicast"));

    m_cameraId = new QSpinBox(this);
    m_cameraId->setObjectName(QStringLiteral("cameraId"));
    m_cameraId->setRange(1, 254);
    m_errorHandling = new QComboBox(this);
    m_errorHandling->setObjectName(QStringLiteral("errorHandling"));
    // The item data is the mode the driver takes.
    m_errorHandling->addItem(tr("Refuse incomplete Images"), 1);
    m_errorHandling->addItem(tr("Ignore image errors"), 2);
    m_errorHandling->addItem(tr("Merge Mode - Release on complete"), 3);
    m_errorHandling->addItem(tr("Merge Mode - Release on new image"), 4);

    auto* form = new QFormLayout;
    form->addRow(tr("Camera ID:"), m_cameraId);
    form->addRow(tr("Error handling:"), m_errorHandling);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    buttons->addButton(tr("Add read-only Device"), QDialogButtonBox::AcceptRole)
        ->setObjectName(QStringLiteral("addReadOnlyDevice"));
    connect(buttons, &QDialogButtonBox::accepted, this, &MulticastDialog::addPMC);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

void MulticastDialog::addPMC()
{
    const quint32 mode = quint32(m_errorHandling->currentIndex() + 1);
    const Result result = ReadOnlyDeviceRequest(m_camera, quint32(m_cameraId->value()), mode).send();
    if (!result.isSuccess()) {
        QMessageBox box(QMessageBox::Critical, tr("Error"), result.text(), QMessageBox::Ok, this);
        box.setObjectName(QStringLiteral("multicastError"));
        box.setInformativeText(tr("Errorcode: %1").arg(result.code()));
        box.exec();
    }
    accept();
}
