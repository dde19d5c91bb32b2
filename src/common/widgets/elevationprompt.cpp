#include "common/widgets/elevationprompt.h"

#include "common/elevatedrestart.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace Elevation {

bool request(bool askFirst, const QString& restartArgument, QWidget* parent)
{
    if (isElevated())
        return true;
    if (askFirst) {
        const auto answer = QMessageBox::question(
            parent, QApplication::translate("Elevation", "Restart application"),
            QApplication::translate("Elevation",
                                    "Some features require admin privileges. Do you want to restart the application "
                                    "as admin?"),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
        if (answer != QMessageBox::Yes)
            return false;
    }
    ElevatedRestart restart;
    if (restart.start(restartArgument)) {
        // Leave the caller's dialog first; the new instance takes over.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
    if (askFirst) {
        QMessageBox box(QMessageBox::Warning, QApplication::translate("Elevation", "Failed"),
                        QApplication::translate("Elevation", "This function needs admin privileges and you refused it!"),
                        QMessageBox::Ok, parent);
        box.setInformativeText(restart.errorText());
        box.exec();
    }
    return false;
}

} // namespace Elevation
