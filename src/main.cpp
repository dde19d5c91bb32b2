#include "app/widgets/startup.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    Startup::prepareProcess();
    QApplication app(argc, argv);
    return Startup::run(app.arguments());
}
