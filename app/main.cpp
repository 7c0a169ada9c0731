#include "calyx.h"
#include "form_font.h"
#include "process_tree.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    const platform::ProgramGuard guard;
    QApplication::setStyle(u"windows"_s);
    QApplication application(argc, argv);
    QApplication::setFont(formFont());

    QTranslator translators[2];
    const QString names[] = {u"qt_"_s, u"calyx_"_s};
    for (int i = 0; i < 2; ++i) {
        // Without a translation file for this locale the texts stay English.
        if (translators[i].load(names[i] + QLocale::system().name(),
                                QApplication::applicationDirPath()))
            QApplication::installTranslator(&translators[i]);
    }

    Calyx wizard;
    QObject::connect(&wizard, &QDialog::rejected, &application, [] { QApplication::exit(); });
    wizard.show();
    application.exec();
    return wizard.exitCode;
}
