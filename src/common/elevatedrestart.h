#pragma once

#include <QString>
#include <QStringList>

// Starts this program again with administrator rights, through the platform's
// authorisation front-end, and reports whether the new instance got them.
class ElevatedRestart final
{
    Q_DISABLE_COPY_MOVE(ElevatedRestart)

public:
    // launcher: the authorisation program; empty uses the platform's own.
    explicit ElevatedRestart(QString launcher = QString());

    // Blocks (keeping the event loop running) until the user has answered the
    // authorisation prompt. True when the elevated instance runs.
    bool start(const QString& restartArgument);
    QString errorText() const { return m_error; }

    // The launcher's arguments: the program and what its environment needs to
    // reach the same display and driver configuration.
    static QStringList launcherArguments(const QString& program, const QString& restartArgument);

private:
    QString m_launcher;
    QString m_error;
};
