// lapdesk: starts the transform window, which creates and links the
// calculator and the import wizard; closing it ends the program.
#include <QApplication>

#include "calculator/qt_translations.h"
#include "transform/window/tesmor_form.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lapdesk"));
    lapdesk::LoadQtTranslations(app);
    lapdesk::TesmorForm form;
    form.show();
    return QApplication::exec();
}
