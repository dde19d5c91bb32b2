#pragma once

#include <QFuture>
#include <QList>

// The firmware upload jobs whose results have not been collected yet.
class PendingUploads final
{
public:
    struct Outcome
    {
        int result = -1; // the last job's return code; -1 without jobs
        bool lastFinished = true; // false while the last job was still at work
    };

    void append(const QFuture<int>& upload) { m_uploads.append(upload); }
    bool isEmpty() const { return m_uploads.isEmpty(); }
    void clear() { m_uploads.clear(); }

    // Takes the result at the index from every job, in order, waiting for
    // those still at work; the last job's values count. A job whose result is
    // there counts as finished, even if its thread has not quite let go yet.
    Outcome collect(int index) const;
    // Cancels every job that has not started and waits for all of them.
    void cancelAndWait();

private:
    QList<QFuture<int>> m_uploads;
};
