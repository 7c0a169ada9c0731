#include "generator_run.h"

#include "program_search.h"

using namespace Qt::StringLiterals;

GeneratorRun::GeneratorRun(QObject *parent) : QProcess(parent)
{
    // Nobody reads its standard error while it runs, and nobody answers it.
    setStandardErrorFile(nullDevice());
    setStandardInputFile(nullDevice());
    // The number of a process that has ended is another's some day.
    connect(this, &QProcess::finished, this, [this] { m_tree.end(); });
}

GeneratorRun::~GeneratorRun()
{
    // Whoever listens may be half destroyed.
    disconnect();
    end();
}

void GeneratorRun::startProgram(const QStringList &arguments)
{
    m_tree.start(QStringList(platform::findProgram(arguments.first())) + arguments.mid(1));
}

void GeneratorRun::end()
{
    m_tree.end();
    waitForFinished();
}

QString GeneratorRun::readText()
{
    QString text = m_decoder.decode(readAllStandardOutput());
    if (m_carriageReturnWaits)
        text.prepend(u'\r');
    m_carriageReturnWaits = text.endsWith(u'\r');
    if (m_carriageReturnWaits)
        text.chop(1);
    return text.replace("\r\n"_L1, "\n"_L1);
}
