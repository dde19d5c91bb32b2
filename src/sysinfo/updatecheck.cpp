#include "sysinfo/updatecheck.h"

#include "common/usersettings.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace {

const QString addressKey = QStringLiteral("generalInfo/updateAddress");

UpdateCheckOutcome failure(const QString& message)
{
    return UpdateCheckOutcome{UpdateCheckOutcome::Kind::Failed, message, std::nullopt};
}

} // namespace

UpdateCheck::UpdateCheck(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<UpdateCheckOutcome>();
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] { abort(Abort::Timeout); });
}

UpdateCheck::~UpdateCheck()
{
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
}

void UpdateCheck::start(const QUrl& address, const QVersionNumber& installed)
{
    cancel();
    m_installed = installed;
    m_abort = Abort::None;
    if (!UpdateDocument::isWebAddress(address)) {
        finish(failure(tr("The update address \"%1\" is not an http or https address.")
                           .arg(address.toString())));
        return;
    }
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(m_limits.maximumRedirects);
    request.setRawHeader("Accept", "application/json");
    if (!m_network) // Qt's network machinery starts threads: only once the user asks
        m_network = new QNetworkAccessManager(this);
    m_reply = m_network->get(request);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &UpdateCheck::onDataArriving);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateCheck::onReplyFinished);
    m_deadline.start(m_limits.timeoutMs);
}

void UpdateCheck::cancel()
{
    if (m_reply)
        abort(Abort::Cancelled);
}

void UpdateCheck::abort(Abort reason)
{
    m_abort = reason;
    if (m_reply)
        m_reply->abort(); // finishes the reply, which reports the reason
}

void UpdateCheck::onDataArriving(qint64 received)
{
    const qint64 announced = m_reply ? m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() : 0;
    if (received > m_limits.maximumBytes || announced > m_limits.maximumBytes)
        abort(Abort::TooLarge);
}

void UpdateCheck::onReplyFinished()
{
    QNetworkReply* reply = m_reply;
    if (!reply)
        return;
    m_deadline.stop();
    m_reply.clear();
    reply->deleteLater();
    finish(outcomeOf(*reply));
}

UpdateCheckOutcome UpdateCheck::outcomeOf(QNetworkReply& reply) const
{
    switch (m_abort) {
    case Abort::Timeout:
        return failure(tr("The update server did not answer within %n second(s).", nullptr,
                          (m_limits.timeoutMs + 999) / 1000));
    case Abort::TooLarge:
        return failure(tr("The update document is larger than %1 kB and was not read.")
                           .arg(m_limits.maximumBytes / 1024));
    case Abort::Cancelled:
        return failure(tr("The check for updates was cancelled."));
    case Abort::None:
        break;
    }
    if (reply.error() != QNetworkReply::NoError)
        return failure(transferFailure(reply));
    QString error;
    const std::optional<UpdateDocument> document = UpdateDocument::parse(reply.readAll(), error);
    return document ? compare(*document, m_installed) : failure(error);
}

QString UpdateCheck::transferFailure(QNetworkReply& reply) const
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status >= 400)
        return tr("The update server answered %1 %2.")
            .arg(status)
            .arg(reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString());
    switch (reply.error()) {
    case QNetworkReply::TooManyRedirectsError:
        return tr("The update address redirects more than %n time(s).", nullptr, m_limits.maximumRedirects);
    case QNetworkReply::InsecureRedirectError:
        return tr("The update server redirects from https to an unencrypted address; the redirect was not followed.");
    case QNetworkReply::HostNotFoundError:
    case QNetworkReply::ConnectionRefusedError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::UnknownNetworkError:
        return tr("The update server could not be reached (%1). Check the network connection and the update "
                  "address.")
            .arg(reply.errorString());
    default:
        return tr("The update document could not be fetched: %1").arg(reply.errorString());
    }
}

void UpdateCheck::finish(const UpdateCheckOutcome& outcome)
{
    emit finished(outcome);
}

UpdateCheckOutcome UpdateCheck::compare(const UpdateDocument& document, const QVersionNumber& installed)
{
    if (QVersionNumber::compare(document.latestVersion.normalized(), installed.normalized()) > 0)
        return UpdateCheckOutcome{UpdateCheckOutcome::Kind::UpdateAvailable,
                                  tr("Version %1 is available; version %2 is installed.")
                                      .arg(document.latestVersion.toString(), installed.toString()),
                                  document};
    return UpdateCheckOutcome{UpdateCheckOutcome::Kind::UpToDate,
                              tr("Version %1 is the latest version.").arg(installed.toString()), document};
}

QString UpdateCheck::storedAddress()
{
    return UserSettings::open().value(addressKey, QStringLiteral(CIRRO_UPDATE_ADDRESS)).toString();
}

void UpdateCheck::storeAddress(const QString& address)
{
    UserSettings::open().setValue(addressKey, address.trimmed());
}
