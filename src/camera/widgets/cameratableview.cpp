#include "camera/widgets/cameratableview.h"

#include "camera/cameralistmodel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

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
    // Without the stretch while fitting: ending it later would give the last
    // section back the width it had before, stretched or not.
    horizontalHeader()->setStretchLastSection(false);
    resizeColumnsToContents();
    horizontalHeader()->setStretchLastSection(true);
    updateGeometry(); // the size hint follows the columns
}

QSize CameraTableView::sizeHint() const
{
    int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < horizontalHeader()->count(); ++column)
        width += std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
    return {width, QTableView::sizeHint().height()};
}

void CameraTableView::setPlaceholderText(const QString& text)
{
    m_placeholder = text;
    viewport()->update();
}

void CameraTableView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (m_placeholder.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    const int margin = fontMetrics().averageCharWidth() * 2;
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}
