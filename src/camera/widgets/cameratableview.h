#pragma once

#include "camera/camera.h"

#include <QTableView>

// The camera table. Besides showing the list it remembers the camera of the
// current row, restarts that camera on Ctrl+Alt+R and asks for new header
// texts when the language changes.
class CameraTableView final : public QTableView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraTableView)

public:
    explicit CameraTableView(QWidget* parent = nullptr);

    const camera::optional<Camera>& selection() const { return m_selection; }
    // A reset forgets the current row; the owner makes a row current again.
    void reset() override;
    // Every column as wide as its contents and header need, the last one
    // stretched to the view's edge. A hidden view does it when it is shown.
    void fitColumns();
    // Wide enough for every column as fitColumns() makes it.
    QSize sizeHint() const override;

    // Shown in the middle of the table while it has no rows.
    void setPlaceholderText(const QString& text);
    QString placeholderText() const { return m_placeholder; }

signals:
    // The camera of the new current row; empty when no row is current.
    void selectedCameraChanged(const camera::optional<Camera>& camera);
    void retranslationRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    camera::optional<Camera> m_selection;
    bool m_fitPending = false;
    QString m_placeholder;
};
