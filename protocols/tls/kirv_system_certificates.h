// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SYSTEM_CERTIFICATES_H
#define KIRV_SYSTEM_CERTIFICATES_H

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSslCertificate>
#include <functional>

class QThread;

/// The certificates that the system trusts, as one list that all connections of a protocol share.
///
/// They are needed as a list only where a connection trusts others besides: without a list of its own, a connection
/// looks up the one that it needs in the folder of the system, and no list takes any memory. Reading them takes long
/// and is done in a thread, when they are needed first and again when what was read is not fresh any more. GUI thread
/// only.
class KirvSystemCertificates : public QObject {
    Q_OBJECT

public:
    using Reader = std::function<QList<QSslCertificate>()>;
    using Receiver = std::function<void(const QList<QSslCertificate> &)>;

    static constexpr int freshFor = 600000; ///< milliseconds

    /// \a read gives the certificates; it is called in another thread, at most once at a time.
    explicit KirvSystemCertificates(const Reader &read, int freshFor = KirvSystemCertificates::freshFor,
                                    QObject *parent = nullptr);
    ~KirvSystemCertificates() override;
    /// Those of this system, for all connections of a plug-in.
    static KirvSystemCertificates &instance();

    /// Calls \a receiver with the certificates: at once when they are there, otherwise from the event loop when they
    /// were read, unless \a context has been destroyed by then.
    void request(QObject *context, const Receiver &receiver);

    /// Loads what encryption needs, in a thread, so that the first connection does not.
    static void prepareEncryption();

private:
    struct Request {
        QPointer<QObject> context;
        Receiver receiver;
    };

    bool isFresh() const { return age.isValid() && age.elapsed() < freshness; }
    void startReading();
    void finishReading();

    const Reader read;
    const int freshness;
    QList<QSslCertificate> certificates;
    QElapsedTimer age; ///< since they were read; invalid: never
    QList<Request> requests;
    QThread *thread = nullptr; ///< while it reads; owned
    QList<QSslCertificate> result; ///< of the thread
};

#endif
