#include "dialogs/pendinguploads.h"

PendingUploads::Outcome PendingUploads::collect(int index) const
{
    Outcome outcome;
    for (QFuture<int> upload : m_uploads) {
        outcome.lastFinished = upload.isResultReadyAt(index) || upload.isFinished();
        // An upload job reports its one result as it ends.
        if (!upload.isResultReadyAt(index))
            upload.waitForFinished();
        outcome.result = upload.isResultReadyAt(index) ? upload.resultAt(index) : -1;
    }
    return outcome;
}

void PendingUploads::cancelAndWait()
{
    for (QFuture<int> upload : m_uploads) {
        upload.cancel();
        upload.waitForFinished();
    }
}
