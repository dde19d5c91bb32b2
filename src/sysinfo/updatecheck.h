#pragma once

#include "sysinfo/updatedocument.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QVersionNumber>

#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

// What one check for updates found.
struct UpdateCheckOutcome
{
    enum class Kind { UpToDate, UpdateAvailable, Failed };

    Kind kind = Kind::Failed;
    QString message; // translated, one or two sentences
    std::optional<UpdateDocument> document;
};

Q_DECLARE_METATYPE(UpdateCheckOutcome)

// Fetches the update document over HTTP(S) and compares its latest version
// with the installed one. A check is bounded in time, size and redirects, so
// that a slow, hostile or misconfigured server can't hold the dialog.
class UpdateCheck final : public QObject
{
    Q_OBJECT

public:
    struct Limits
    {
        int timeoutMs = 15000;
        qint64 maximumBytes = 64 * 1024;
        int maximumRedirects = 5;
    };

    explicit UpdateCheck(QObject* parent = nullptr);
    ~UpdateCheck() override;

    void setLimits(const Limits& limits) { m_limits = limits; }
    // One check at a time: starting while one runs cancels the first.
    void start(const QUrl& address, const QVersionNumber& installed);
    void cancel();
    bool isRunning() const { return !m_reply.isNull(); }

    // The address kept in the user settings; the build's default until the
    // user sets one (empty when the build names none).
    static QString storedAddress();
    static void storeAddress(const QString& address);

    static UpdateCheckOutcome compare(const UpdateDocument& document, const QVersionNumber& installed);

signals:
    void finished(const UpdateCheckOutcome& outcome);

private:
    enum class Abort { None, Timeout, TooLarge, Cancelled };

    void onReplyFinished();
    void onDataArriving(qint64 received);
    UpdateCheckOutcome outcomeOf(QNetworkReply& reply) const;
    QString transferFailure(QNetworkReply& reply) const;
    void abort(Abort reason);
    void finish(const UpdateCheckOutcome& outcome);

    QNetworkAccessManager* m_network = nullptr;
    QPointer<QNetworkReply> m_reply;
    QTimer m_deadline;
    Limits m_limits;
    QVersionNumber m_installed;
    Abort m_abort = Abort::None;
};
