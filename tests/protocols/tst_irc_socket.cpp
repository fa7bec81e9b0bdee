// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_socket.h"
#include "tests/protocols/fake_irc_socket.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_patience.h"

#include <QSignalSpy>
#include <QTest>
#include <memory>

/// A socket that sends nothing until a test lets it, and can end.
class SlowIrcSocket : public FakeIrcSocket {
public:
    qint64 bytesToWrite() const override { return waiting; }
    void setWaiting(qint64 bytes)
    {
        waiting = bytes;
        Q_EMIT bytesWritten(1);
    }
    void end(SocketError error)
    {
        setSocketError(error);
        setErrorString(QStringLiteral("It has ended"));
        Q_EMIT errorOccurred(error);
        disconnectFromHost();
        Q_EMIT disconnected();
    }

private:
    qint64 waiting = 0;
};

/// How much is handed on in one turn of the event loop, and in which order things end.
class tst_IrcSocket : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void handsOnFewLinesInATurn();
    void readsFewBytesInATurn();
    void otherEventsAreHandledBetweenTwoTurns();
    void readsNothingWhileTooMuchWaitsToBeSent();
    void lineThatIsTooLongIsReportedOnce();
    void whatCameBeforeTheEndIsHandedOn_data();
    void whatCameBeforeTheEndIsHandedOn();
    void errorBeforeTheConnectionIsReported();
    void breakingOffIsSilent();
    void droppedLinesAreHeard();
    void socketCanBeDestroyedWhileItHandsOn();

private:
    /// One turn of the event loop's timers; gives what the library would have read.
    QByteArray turn();

    KirvFakeClock clock;
    SlowIrcSocket *transport = nullptr;
    std::unique_ptr<KirvIrcSocket> socket;
    QByteArray handedOn;
};

void tst_IrcSocket::init()
{
    transport = new SlowIrcSocket;
    socket = std::make_unique<KirvIrcSocket>(transport, clock);
    connect(socket.get(), &QAbstractSocket::readyRead, this, [this] { handedOn += socket->readAll(); });
    handedOn.clear();
    QSignalSpy connected(socket.get(), &QAbstractSocket::connected);
    socket->connectToHost(QStringLiteral("irc.example.org"), 6667, QIODevice::ReadWrite,
                          QAbstractSocket::AnyIPProtocol);
    QCOMPARE(connected.size(), 1);
    turn();
}

void tst_IrcSocket::cleanup()
{
    socket.reset();
}

QByteArray tst_IrcSocket::turn()
{
    handedOn.clear();
    bool isOver = false;
    QTimer end;
    end.setSingleShot(true);
    connect(&end, &QTimer::timeout, this, [&isOver] { isOver = true; });
    end.start(0);
    while (!isOver)
        QCoreApplication::processEvents();
    return handedOn;
}

void tst_IrcSocket::handsOnFewLinesInATurn()
{
    const int count = 3 * KirvIrcSocket::linesPerTurn + 1;
    transport->receive(QByteArray("PING :a\r\n").repeated(count).chopped(2));
    int total = 0;
    int turns = 0;
    for (; total < count && turns < 10; ++turns) {
        const int lines = turn().count("PING");
        QVERIFY2(lines <= 2 * KirvIrcSocket::linesPerTurn, qPrintable(QString::number(lines)));
        total += lines;
    }
    QCOMPARE(total, count);
    QVERIFY(turns >= 2);
}

void tst_IrcSocket::readsFewBytesInATurn()
{
    const QByteArray notice = "NOTICE alice :" + QByteArray(400, 'x') + "\r\n";
    const QByteArray notices = notice.repeated(10 * KirvIrcSocket::bytesPerTurn / notice.size());
    transport->receive(notices + "PING :end");
    qint64 left = transport->bytesAvailable();
    while (left > 0) {
        QVERIFY(turn().isEmpty() || left <= 2 * KirvIrcSocket::bytesPerTurn);
        const qint64 read = left - transport->bytesAvailable();
        QVERIFY2(read > 0 && read <= 2 * KirvIrcSocket::bytesPerTurn, qPrintable(QString::number(read)));
        left -= read;
    }
    QVERIFY(handedOn.contains("PING :end") || turn().contains("PING :end"));
}

void tst_IrcSocket::otherEventsAreHandledBetweenTwoTurns()
{
    transport->receive(QByteArray("PING :a\r\n").repeated(100 * KirvIrcSocket::linesPerTurn));
    QTimer other;
    int calls = 0;
    connect(&other, &QTimer::timeout, this, [&calls] { ++calls; });
    other.start(0);
    for (int turns = 0; turns < 20; ++turns)
        turn();
    QVERIFY2(calls >= 10, qPrintable(QString::number(calls)));
    QVERIFY(socket->state() == QAbstractSocket::ConnectedState);
}

void tst_IrcSocket::readsNothingWhileTooMuchWaitsToBeSent()
{
    transport->setWaiting(KirvIrcSocket::largestBacklog + 1);
    turn();
    transport->receive("PING :a");
    QVERIFY(turn().isEmpty() && turn().isEmpty());
    transport->setWaiting(0);
    KIRV_TRY_COMPARE(handedOn, QByteArray("PING :a\r\n"));
}

void tst_IrcSocket::lineThatIsTooLongIsReportedOnce()
{
    QSignalSpy tooLong(socket.get(), &KirvIrcSocket::lineWasTooLong);
    const int size = 4 * KirvIrcInput::longestLine;
    transport->receive(QByteArray(size, 'x'));
    for (int turns = 0; turns < 20; ++turns)
        turn();
    QCOMPARE(tooLong.size(), 1);
    QVERIFY(transport->bytesAvailable() > size / 2);
}

void tst_IrcSocket::whatCameBeforeTheEndIsHandedOn_data()
{
    QTest::addColumn<int>("error");
    QTest::newRow("closed") << int(QAbstractSocket::RemoteHostClosedError);
    QTest::newRow("broken") << int(QAbstractSocket::NetworkError);
}

void tst_IrcSocket::whatCameBeforeTheEndIsHandedOn()
{
    QFETCH(int, error);
    QSignalSpy errors(socket.get(), &QAbstractSocket::errorOccurred);
    QSignalSpy ended(socket.get(), &QAbstractSocket::disconnected);
    const QByteArray lines = QByteArray("PING :a\r\n").repeated(5 * KirvIrcSocket::linesPerTurn);
    transport->receive(lines + "ERROR :Go away");
    transport->end(QAbstractSocket::SocketError(error));
    QVERIFY(ended.isEmpty() && errors.isEmpty());
    QByteArray all;
    while (ended.isEmpty())
        all += turn();
    QCOMPARE(all, lines + "ERROR :Go away\r\n");
    QCOMPARE(errors.size(), 1);
    QCOMPARE(int(errors[0][0].value<QAbstractSocket::SocketError>()), error);
    QCOMPARE(socket->errorString(), QString("It has ended"));
    turn();
    QCOMPARE(ended.size(), 1);
    QCOMPARE(socket->state(), QAbstractSocket::UnconnectedState);
}

void tst_IrcSocket::errorBeforeTheConnectionIsReported()
{
    auto *dead = new SlowIrcSocket;
    KirvIrcSocket other(dead, clock);
    QSignalSpy errors(&other, &QAbstractSocket::errorOccurred);
    connect(dead, &QAbstractSocket::stateChanged, dead, [dead](QAbstractSocket::SocketState state) {
        if (state == QAbstractSocket::ConnectingState)
            dead->end(QAbstractSocket::ConnectionRefusedError);
    });
    other.connectToHost(QStringLiteral("irc.example.org"), 6667, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors[0][0].value<QAbstractSocket::SocketError>(), QAbstractSocket::ConnectionRefusedError);
}

void tst_IrcSocket::breakingOffIsSilent()
{
    QSignalSpy errors(socket.get(), &QAbstractSocket::errorOccurred);
    QSignalSpy ended(socket.get(), &QAbstractSocket::disconnected);
    transport->receive("PING :a");
    socket->breakOff();
    QVERIFY(turn().isEmpty() && turn().isEmpty());
    QVERIFY(errors.isEmpty() && ended.isEmpty());
    QCOMPARE(transport->state(), QAbstractSocket::UnconnectedState);
}

void tst_IrcSocket::droppedLinesAreHeard()
{
    QSignalSpy heard(socket.get(), &KirvIrcSocket::received);
    transport->receive(":bob!b@host PRIVMSG alice :Hello");
    QVERIFY(turn().isEmpty());
    KIRV_TRY_COMPARE(heard.size(), 1);
}

void tst_IrcSocket::socketCanBeDestroyedWhileItHandsOn()
{
    QSignalSpy ended(transport, &QObject::destroyed);
    connect(socket.get(), &QAbstractSocket::readyRead, this, [this] { socket.reset(); });
    transport->receive(QByteArray("PING :a\r\n").repeated(1000));
    KIRV_TRY_COMPARE(ended.size(), 1);
}

QTEST_GUILESS_MAIN(tst_IrcSocket)
#include "tst_irc_socket.moc"
