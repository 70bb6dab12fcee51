// lapdesk: starts the transform window, which creates and links the
// calculator and the import wizard; closing it ends the program.
#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <cstring>

#include "calculator/qt_translations.h"
#include "transform/window/tesmor_form.h"
#include "version/version.h"

int main(int argc, char** argv) {
    // Answered before Qt starts, so that it works without a display.
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        std::printf("lapdesk %s\n", lapdesk::kVersion);
        return 0;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lapdesk"));
    lapdesk::LoadQtTranslations(app);
    QApplication::setApplicationVersion(QString::fromLatin1(lapdesk::kVersion));
    // The desktop entry's name and the installed icon: the shell shows them
    // for the running program.
    QGuiApplication::setDesktopFileName(QStringLiteral("lapdesk"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("lapdesk")));
    lapdesk::TesmorForm form;
    form.show();
    return QApplication::exec();
}
