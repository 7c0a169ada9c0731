#include "again.h"

#include "text_file.h"

#include <QDir>

using namespace Qt::StringLiterals;

std::variant<EarlierPersonality, QString> readEarlierPersonality(const QString &path)
{
    const platform::FileContent file = platform::readFile(path);
    if (file.state != platform::FileContent::Whole)
        return u"The personality cannot be read: %1"_s.arg(path);
    QByteArray text = file.bytes;
    text.replace("\r\n", "\n"); // git, for one, writes text files so on Windows
    const Personality content = parsePersonality(text);
    const CommandLine &answers = content.answers;
    if (answers.arguments.isEmpty())
        return u"The personality does not say by which answers it was generated: %1"_s.arg(path);
    const auto parsed = parseArguments(answers.arguments);
    if (const auto *error = std::get_if<UsageError>(&parsed))
        return u"The answers in the personality are not complete. %1"_s.arg(error->sentence);

    EarlierPersonality earlier {text, content, std::get<Arguments>(parsed)};
    earlier.arguments.personality = path;
    earlier.arguments.answers = answers;
    return earlier;
}

std::optional<QString> enterFolderOf(const EarlierPersonality &earlier)
{
    const QString &folder = earlier.arguments.answers.directory;
    if (QDir::setCurrent(folder))
        return {};
    return u"There is no folder %1; what was relative to it is looked for in %2."_s.arg(
        folder, QDir::currentPath());
}
