#include "app/calyx.h"
#include "forms/form_font.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

int main(int argc, char *argv[])
{
    QApplication::setStyle(QStringLiteral("windows"));
    QApplication application(argc, argv);
    QApplication::setFont(formFont());

    QTranslator translators[2];
    const QString names[] = {QStringLiteral("qt_"), QStringLiteral("calyx_")};
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
