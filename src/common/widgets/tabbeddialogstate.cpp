#include "common/widgets/tabbeddialogstate.h"

#include "common/usersettings.h"

#include <QDialog>
#include <QTabWidget>

namespace TabbedDialogState {

void restore(QDialog& dialog, QTabWidget& pages, const QString& group)
{
    QSettings stored = UserSettings::open();
    stored.beginGroup(group);
    dialog.restoreGeometry(stored.value(QStringLiteral("geometry")).toByteArray());
    const QString last = stored.value(QStringLiteral("lastPage")).toString();
    for (int i = 0; i < pages.count(); ++i) {
        if (pages.widget(i)->objectName() == last)
            pages.setCurrentIndex(i);
    }
}

void save(const QDialog& dialog, const QTabWidget& pages, const QString& group)
{
    QSettings stored = UserSettings::open();
    stored.beginGroup(group);
    stored.setValue(QStringLiteral("geometry"), dialog.saveGeometry());
    if (const QWidget* page = pages.currentWidget())
        stored.setValue(QStringLiteral("lastPage"), page->objectName());
}

} // namespace TabbedDialogState
