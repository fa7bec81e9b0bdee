// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOCAL_SERVER_H
#define KIRV_LOCAL_SERVER_H

#include <QString>
#include <QTemporaryDir>

#include <memory>

class QProcess;

/// A private server on loopback: its files in a temporary folder, a free port, ended with its owner (also when
/// the owner is killed). Used by the demo and by the tests.
class KirvLocalServer {
public:
    virtual ~KirvLocalServer();

    /// Writes the configuration, starts the program and waits until its port answers. False with errorString()
    /// when the program is not installed or does not come up. True at once when it is running already.
    bool start();
    /// Ends it in an orderly way (SIGTERM), after a while the hard way. The files and the port stay reserved, so
    /// start() brings the same server back.
    void stop();
    /// Ends it at once, as a crash would (SIGKILL).
    void kill();

    bool isRunning() const;
    QString host() const { return QStringLiteral("127.0.0.1"); }
    quint16 port() const { return serverPort; }
    QString folder() const { return files.path(); }
    QString errorString() const { return error; }
    /// What the server has printed so far.
    QString output();

    /// A port on loopback that is free now.
    static quint16 findFreePort();

protected:
    /// At \a port; 0: at a free one that is chosen.
    explicit KirvLocalServer(quint16 port = 0);
    /// Writes what the program needs into folder(); called by every start(). False with fail().
    virtual bool writeConfiguration() = 0;
    /// The program (looked for in PATH and the sbin folders) and its arguments.
    virtual QString program() const = 0;
    virtual QStringList arguments() const = 0;
    bool fail(const QString &text);
    /// Writes a file into folder(), readable by its owner only; false with fail().
    bool writeFile(const QString &name, const QByteArray &content);
    /// Runs a tool to its end; false with errorString() when it fails. What it prints goes to \a printed.
    bool runTool(const QString &program, const QStringList &arguments, QString *printed = nullptr);

private:
    bool launch();
    bool waitUntilReady();
    void end(int milliseconds);

    QTemporaryDir files;
    std::unique_ptr<QProcess> process;
    QString error;
    QByteArray collected;
    quint16 serverPort = 0;
};

#endif
