#pragma once

#include "process_tree.h"

#include <QProcess>
#include <QStringDecoder>

/// One run of the generator. The program and all that it starts end with this object at the latest
/// and, while there is a ProgramGuard, with the wizard.
class GeneratorRun : public QProcess
{
    Q_OBJECT

public:
    explicit GeneratorRun(QObject *parent);
    /// Ends the program without a signal.
    ~GeneratorRun() override;

    /// Starts the program \a arguments[0] with the others as its arguments, without a shell, in the
    /// current directory. The program is looked for along the PATH and then beside the wizard's
    /// own. Reports a failure through errorOccurred().
    void startProgram(const QStringList &arguments);

    /// Ends the program if it runs; finished() has been emitted when this returns.
    void end();

    /// The standard output that has arrived since the last call, from the local encoding, with line
    /// feeds as line ends. A character or a line end of which only the first bytes have arrived
    /// waits for the rest.
    QString readText();

private:
    platform::ProcessTree m_tree {*this};
    QStringDecoder m_decoder {QStringDecoder::System};
    bool m_carriageReturnWaits = false;
};
