#include "generation/generator_process.h"

#include "platform/program_search.h"

GeneratorProcess::GeneratorProcess(QObject *parent) : QProcess(parent)
{
    // Nobody reads its standard error while it runs, and nobody answers it.
    setStandardErrorFile(nullDevice());
    setStandardInputFile(nullDevice());
}

void GeneratorProcess::startProgram(const QStringList &arguments)
{
    start(platform::findProgram(arguments.first()), arguments.mid(1));
}

QString GeneratorProcess::readText()
{
    const QLatin1Char carriageReturn('\r');
    QString text = m_decoder.decode(readAllStandardOutput());
    if (m_carriageReturnWaits)
        text.prepend(carriageReturn);
    m_carriageReturnWaits = text.endsWith(carriageReturn);
    if (m_carriageReturnWaits)
        text.chop(1);
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}
