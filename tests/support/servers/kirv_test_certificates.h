// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TEST_CERTIFICATES_H
#define KIRV_TEST_CERTIFICATES_H

#include "tests/support/kirv_patience.h"

#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QTemporaryDir>

/// Makes certificates for servers, with keys on an elliptic curve, in a folder of its own.
class KirvTestCertificates {
public:
    struct Wish {
        QString subject = QStringLiteral("/CN=localhost"); ///< as openssl takes it
        QString names = QStringLiteral("DNS:localhost,IP:127.0.0.1"); ///< the alternative names
        int from = -1, until = 30; ///< days from now
        QString issuer; ///< the name of another certificate; empty: itself
        bool isAuthority = false;
    };

    /// Makes the certificate \a name with its key; false when a tool fails.
    bool make(const QString &name, const Wish &wish)
    {
        const QString issuer = wish.issuer.isEmpty() ? name : wish.issuer;
        QStringList sign { "ca",        "-batch",     "-notext",         "-config",  path("ca.conf"),   "-extfile",
                           path("ext"), "-in",        path("request"),   "-out",     certificate(name), "-keyfile",
                           key(issuer), "-startdate", dateOf(wish.from), "-enddate", dateOf(wish.until) };
        sign << (wish.issuer.isEmpty() ? QStringList { "-selfsign" } : QStringList { "-cert", certificate(issuer) });
        const QByteArray constraints = wish.isAuthority ? "CA:TRUE" : "CA:FALSE";
        return write("index", QByteArray()) && write("serial", QByteArray::number(++serial + 0x1000) + '\n')
            && write("ca.conf",
                     "[ca]\ndefault_ca=a\n[a]\ndatabase=" + path("index").toUtf8()
                         + "\nserial=" + path("serial").toUtf8() + "\nnew_certs_dir=" + folder.path().toUtf8()
                         + "\ndefault_md=sha256\npolicy=p\nunique_subject=no\n"
                           "[p]\ncommonName=optional\norganizationName=optional\n")
            && write("ext", "subjectAltName=" + wish.names.toUtf8() + "\nbasicConstraints=" + constraints + '\n')
            && run({ "req", "-new", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-subj",
                     wish.subject, "-keyout", key(name), "-out", path("request") })
            && run(sign);
    }

    QString certificate(const QString &name) const { return path(name + QStringLiteral(".pem")); }
    QString key(const QString &name) const { return path(name + QStringLiteral(".key")); }
    QSslCertificate read(const QString &name) const { return QSslCertificate::fromPath(certificate(name)).value(0); }
    QByteArray digest(const QString &name) const { return read(name).digest(QCryptographicHash::Sha256); }

private:
    QString path(const QString &name) const { return folder.filePath(name); }
    static QString dateOf(int days)
    {
        return QDateTime::currentDateTimeUtc().addDays(days).toString(QStringLiteral("yyyyMMddhhmmss")) + 'Z';
    }
    bool write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }
    static bool run(const QStringList &arguments)
    {
        QProcess openssl;
        openssl.start(QStringLiteral("openssl"), arguments);
        openssl.waitForFinished(kirvPatience);
        if (openssl.exitCode() != 0)
            qWarning("%s", openssl.readAllStandardError().constData());
        return openssl.exitStatus() == QProcess::NormalExit && openssl.exitCode() == 0;
    }

    QTemporaryDir folder;
    int serial = 0;
};

#endif
