#include "calyx.h"

#include "settings_text.h"
#include "text_file.h"

using namespace Qt::StringLiterals;

namespace {

const QString settingsFile = u"settings.txt"_s;
const qint64 settingsLimit = 1'000'000;

} // namespace

void Calyx::readSettings()
{
    const QString text = platform::readTextFile(settingsFile, settingsLimit).value_or(QString());
    for (const StoredAnswer &stored : parseSettings(text, answers)) {
        if (stored.field->show)
            stored.field->show(answers, *this);
        if (stored.isLocked)
            stored.field->lock(*this);
    }
}

void Calyx::writeSettings()
{
    // What cannot be written is lost without a word; the run's result on the screen is what counts.
    platform::writeTextFile(settingsFile, settingsText(detailsText, currentAnswers()));
}
