#include "app/widgets/startup.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    Startup::prepareProcess();
    // The toolkit ends the process when it finds no display; the help text
    // and a clear message need none.
    if (!Startup::windowsPossible(argc, argv))
        return Startup::runWithoutWindows(argc, argv);
    QApplication app(argc, argv);
    return Startup::run(app.arguments());
}
