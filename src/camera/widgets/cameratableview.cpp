#include "camera/widgets/cameratableview.h"

#include "camera/cameralistmodel.h"

#include <QHeaderView>
#include <QKeyEvent>

CameraTableView::CameraTableView(QWidget* parent)
    : QTableView(parent)
{
    setObjectName(QStringLiteral("cameraTable"));
    setSortingEnabled(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSortIndicatorShown(true);
}

void CameraTableView::reset()
{
    QTableView::reset();
    m_selection.reset();
}

void CameraTableView::keyPressEvent(QKeyEvent* event)
{
    const bool rebootChord = event->key() == Qt::Key_R
                             && event->modifiers() == (Qt::ControlModifier | Qt::AltModifier);
    if (rebootChord && m_selection)
        pv_RebootDevice(m_selection->deviceId() | PV_DEVICE_ID_FLAG, 0);
    QTableView::keyPressEvent(event);
}

void CameraTableView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        emit retranslationRequested();
    QTableView::changeEvent(event);
}

void CameraTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid() && previous.isValid() && current.row() == previous.row())
        return;
    const QVariant camera = current.data(CameraListModel::cameraRole);
    m_selection = camera.isValid() ? camera::optional<Camera>(camera.value<Camera>()) : std::nullopt;
    emit selectedCameraChanged(m_selection);
    fitColumns();
}

void CameraTableView::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    if (m_fitPending)
        fitColumns();
}

void CameraTableView::fitColumns()
{
    // Fitting measures the text of every row. A hidden view fits once when it
    // is shown instead of at each model, selection and language change of the
    // start-up.
    if (!isVisible()) {
        m_fitPending = true;
        return;
    }
    m_fitPending = false;
    resizeColumnsToContents();
    // Resizing the last section by hand ends its stretch; start it again.
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setStretchLastSection(true);
}
