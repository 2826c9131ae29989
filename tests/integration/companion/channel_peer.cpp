// One end of a channel: channel_peer recorder|companion WAY CONTAINER [IDENTIFIER]. Listens to that from its start,
// does what lines on the standard input say, and prints what it hears.

#include <QCoreApplication>
#include <QSocketNotifier>
#include <chrono>
#include <iostream>
#include <string>

#include "CompanionChannel.h"
#include "adapters/qt/QtAppContainer.h"
#include "adapters/qt/QtRunLoop.h"

namespace {

using namespace tavi;

/// Texts as they are, and of bytes only their number.
std::string shown(const QVariant& value) {
    if (value.typeId() == QMetaType::QByteArray) {
        return std::to_string(value.toByteArray().size()) + " bytes";
    }
    return value.isValid() ? value.toString().toStdString() : "nothing";
}

qint64 microseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

void say(const std::string& line) {
    std::cout << line << std::endl;
}

void act(CompanionChannel& channel, const QStringList& words) {
    const QString id = words.value(1);
    if (words[0] == u"time") {
        // A message is the moment at which it was passed.
        channel.receiver().listenForMessageWithIdentifier(
            id, [](const QVariant& value) { say("took " + std::to_string(microseconds() - value.toLongLong())); });
    } else if (words[0] == u"now") {
        channel.sender().passMessageObject(microseconds(), id);
    } else if (words[0] == u"pass") {
        channel.sender().passMessageObject(words.value(2), id);
    } else if (words[0] == u"count") {
        for (int i = 1; i <= words.value(2).toInt(); ++i) {
            channel.sender().passMessageObject(i, id);
        }
    } else if (words[0] == u"bytes") {
        channel.sender().passMessageObject(QByteArray(words.value(2).toInt(), 'x'), id);
    } else if (words[0] == u"nothing") {
        channel.sender().passMessageObject({}, id);
    } else if (words[0] == u"read") {
        say("read " + shown(channel.sender().messageWithIdentifier(id)));
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QtRunLoop runLoop;
    const auto container = QtAppContainer::create(argv[3]).value();
    const bool isRecorder = std::string(argv[1]) == "recorder";
    CompanionChannel channel(*container, runLoop, QDBusConnection::sessionBus(),
                             isRecorder ? LocalWatchSession::End::Recorder : LocalWatchSession::End::Companion,
                             transitingTypeNamed(argv[2]));
    const auto reached = [&] { say(channel.session().isReachable() ? "reached" : "alone"); };
    QObject::connect(&channel.session(), &LocalWatchSession::reachabilityChanged, &application, reached);
    if (argc > 4) {
        channel.receiver().listenForMessageWithIdentifier(QString::fromLatin1(argv[4]),
                                                          [](const QVariant& value) { say("heard " + shown(value)); });
    }
    QSocketNotifier input(0, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            QCoreApplication::quit();
            return;
        }
        act(channel, QString::fromStdString(line).split(QLatin1Char(' ')));
        say("done");
    });
    say("there");
    return QCoreApplication::exec();
}
