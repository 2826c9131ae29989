#include <gmock/gmock.h>

#include <QDBusPendingCallWatcher>
#include <QFile>

#include "adapters/dbus/DBusIdleTimer.h"
#include "adapters/desktop/DesktopMailComposer.h"
#include "support/EventLoop.h"
#include "support/FakeDesktop.h"
#include "support/Fakes.h"
#include "support/PrivateBus.h"

namespace tavi::test {

namespace {

enum class Kind { Fake, Portal, ScreenSaver, Nothing };

QStringList namesOf(Kind kind) {
    return kind == Kind::Portal        ? QStringList{FakeDesktop::portal(), FakeDesktop::screenSaver()}
           : kind == Kind::ScreenSaver ? QStringList{FakeDesktop::screenSaver()}
                                       : QStringList();
}

/// A private bus with a desktop on it that has what the kind tells.
class Desktop : public ::testing::TestWithParam<Kind> {
protected:
    bool isFake() const { return GetParam() == Kind::Fake; }
    /// Waits until everything sent so far has been dealt with on both sides.
    bool settle() {
        QObject context;
        for (int round = 0; round < 3; ++round) {
            // The watcher is told in the order in which messages are; the call itself knows before.
            bool answered = false;
            auto* watcher =
                new QDBusPendingCallWatcher(m_client.asyncCall(QDBusMessage::createMethodCall(
                                                m_service.baseService(), QStringLiteral("/"),
                                                QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"))),
                                            &context);
            QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context, [&answered] { answered = true; });
            if (!spinUntil([&answered] { return answered; })) {
                return false;
            }
        }
        return true;
    }

    PrivateBus m_bus;
    QDBusConnection m_service = m_bus.connect();
    QDBusConnection m_client = m_bus.connect();
    FakeDesktop m_desktop{m_service, namesOf(GetParam())};
};

class IdleTimerContract : public Desktop {
protected:
    std::unique_ptr<IdleTimer> make() {
        if (isFake()) {
            return std::make_unique<FakeIdleTimer>();
        }
        return std::make_unique<DBusIdleTimer>(m_client, QStringLiteral("Recording"));
    }
    /// Whether the screen is kept on, as far as there is something that keeps it on.
    bool isKeptOn(bool expected) {
        const bool hasService = GetParam() == Kind::Portal || GetParam() == Kind::ScreenSaver;
        return !hasService || spinUntil([&] { return m_desktop.inhibitions.size() == (expected ? 1 : 0); });
    }
};

TEST_P(IdleTimerContract, KeepsTheScreenOnWhileDisabled) {
    auto timer = make();
    timer->setIdleTimerDisabled(true);
    timer->setIdleTimerDisabled(true);
    EXPECT_TRUE(timer->isIdleTimerDisabled());
    ASSERT_TRUE(settle());
    EXPECT_TRUE(isKeptOn(true));
    timer->setIdleTimerDisabled(false);
    EXPECT_FALSE(timer->isIdleTimerDisabled());
    EXPECT_TRUE(isKeptOn(false));
    // The last wish counts, before the answers come too.
    for (const bool last : {false, true}) {
        timer->setIdleTimerDisabled(true);
        timer->setIdleTimerDisabled(false);
        timer->setIdleTimerDisabled(last);
        ASSERT_TRUE(settle());
        EXPECT_TRUE(isKeptOn(last));
    }
    timer.reset();
    EXPECT_TRUE(isKeptOn(false));
}

INSTANTIATE_TEST_SUITE_P(All, IdleTimerContract,
                         ::testing::Values(Kind::Fake, Kind::Portal, Kind::ScreenSaver, Kind::Nothing));

using IdleTimerOnBus = IdleTimerContract;
INSTANTIATE_TEST_SUITE_P(Services, IdleTimerOnBus, ::testing::Values(Kind::Portal, Kind::ScreenSaver));

TEST_P(IdleTimerOnBus, AsksAgainWhenTheDesktopComesBack) {
    const bool isPortal = GetParam() == Kind::Portal;
    const QString service = isPortal ? FakeDesktop::portal() : FakeDesktop::screenSaver();
    auto timer = make();
    timer->setIdleTimerDisabled(true);
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(isKeptOn(true));
        EXPECT_EQ(m_desktop.inhibitFlags, isPortal ? 8U : 0U);
        EXPECT_EQ(m_desktop.inhibitReason, QStringLiteral("Recording"));
        m_desktop.disown(service);
        ASSERT_TRUE(settle());
        m_desktop.inhibitions.clear();
        // Who comes back while nobody wants it is not asked.
        timer->setIdleTimerDisabled(round == 0);
        m_desktop.own(service);
        ASSERT_TRUE(settle());
    }
    EXPECT_TRUE(m_desktop.inhibitions.isEmpty());
}

class MailComposerContract : public Desktop {
public:
    MailComposerContract() {
        qputenv("PATH", m_programs.path().toUtf8());
        write(m_attachment, "sound");
    }
    ~MailComposerContract() override { qputenv("PATH", m_path); }

protected:
    std::unique_ptr<MailComposer> make() {
        if (isFake()) {
            return std::make_unique<FakeMailComposer>();
        }
        if (GetParam() == Kind::ScreenSaver) {
            // No portal, but an xdg-email; it takes the place of the user's whole mail program and writes down its
            // call.
            const QString script = m_programs.filePath(QStringLiteral("xdg-email"));
            write(script,
                  "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"${0%/*}/call\"\nexit \"$(/bin/cat \"${0%/*}/exit\")\"\n");
            QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            write(m_exit, "0");
        }
        auto composer = std::make_unique<DesktopMailComposer>(m_client);
        EXPECT_TRUE(settle());
        return composer;
    }

    static void write(const QString& path, const char* text) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    MailMessage message() const {
        return {QStringLiteral("a@example.org"),
                QStringLiteral("Tone; $(rm -rf /)"),
                QStringLiteral("Body"),
                {{m_attachment.toStdString(), QStringLiteral("audio/m4a"), QFileInfo(m_attachment).fileName()}}};
    }

    /// Composes and waits for the result; the text of the error, or "ok".
    QString outcomeOf(MailComposer& composer, const MailMessage& mail) {
        QString outcome;
        composer.compose(mail, [&outcome](const Result<void>& result) {
            outcome = result ? QStringLiteral("ok") : result.error().text;
        });
        EXPECT_TRUE(spinUntil([&outcome] { return !outcome.isEmpty(); }));
        return outcome;
    }

    QByteArray m_path = qgetenv("PATH");
    QTemporaryDir m_programs;
    QString m_exit = m_programs.filePath(QStringLiteral("exit"));
    QString m_attachment = m_programs.filePath(QStringLiteral("-a 'b' \"c\" $(touch x);\n.m4a"));
};

TEST_P(MailComposerContract, HandsOverAMailWhereItCan) {
    const auto composer = make();
    if (GetParam() == Kind::Nothing) {
        EXPECT_FALSE(composer->canSendMail());
        EXPECT_EQ(outcomeOf(*composer, message()), QStringLiteral("There is no mail program."));
        return;
    }
    EXPECT_TRUE(composer->canSendMail());
    EXPECT_EQ(outcomeOf(*composer, message()), QStringLiteral("ok"));
    if (GetParam() == Kind::Portal) {
        EXPECT_THAT(m_desktop.mailAttachments, ::testing::ElementsAre("sound"));
        EXPECT_EQ(m_desktop.mail.value(QStringLiteral("subject")), message().subject);
        EXPECT_EQ(m_desktop.mail.value(QStringLiteral("body")), QStringLiteral("Body"));
        EXPECT_EQ(m_desktop.mail.value(QStringLiteral("addresses")).toStringList(), QStringList{message().recipient});
    } else if (GetParam() == Kind::ScreenSaver) {
        QFile call(m_programs.filePath(QStringLiteral("call")));
        ASSERT_TRUE(call.open(QIODevice::ReadOnly));
        EXPECT_EQ(QString::fromUtf8(call.readAll()),
                  QStringLiteral("--utf8\n--subject\nTone; $(rm -rf /)\n--body\nBody\n--attach\n") + m_attachment +
                      QStringLiteral("\na@example.org\n"));
    }
}

INSTANTIATE_TEST_SUITE_P(All, MailComposerContract,
                         ::testing::Values(Kind::Fake, Kind::Portal, Kind::ScreenSaver, Kind::Nothing));

using MailOnBus = MailComposerContract;
INSTANTIATE_TEST_SUITE_P(Portal, MailOnBus, ::testing::Values(Kind::Portal));

TEST_P(MailOnBus, TellsRefusalFromCancelling) {
    const auto composer = make();
    MailMessage missing = message();
    missing.attachments.front().path = "/nowhere/a.m4a";
    EXPECT_EQ(outcomeOf(*composer, missing), QStringLiteral("There is no file “/nowhere/a.m4a” to attach."));
    m_desktop.mailResponse = 1;
    EXPECT_EQ(outcomeOf(*composer, message()), QStringLiteral("ok"));
    m_desktop.mailResponse = 2;
    EXPECT_EQ(outcomeOf(*composer, message()), QStringLiteral("The desktop's mail program did not take the mail."));
    m_desktop.refusesMail = true;
    EXPECT_EQ(outcomeOf(*composer, message()), QStringLiteral("There is no mail program."));
    m_desktop.refusesMail = false;
    m_desktop.disown(FakeDesktop::portal());
    EXPECT_TRUE(spinUntil([&composer] { return !composer->canSendMail(); }));
    m_desktop.mailVersion = 2;
    m_desktop.mailResponse = 0;
    m_desktop.own(FakeDesktop::portal());
    EXPECT_TRUE(spinUntil([&composer] { return composer->canSendMail(); }));
    EXPECT_EQ(outcomeOf(*composer, message()), QStringLiteral("ok"));
    EXPECT_EQ(m_desktop.mail.value(QStringLiteral("address")), message().recipient);
    EXPECT_FALSE(m_desktop.mail.contains(QStringLiteral("addresses")));
    m_desktop.disown(FakeDesktop::portal());
    m_desktop.mailVersion = 0;
    m_desktop.own(FakeDesktop::portal());
    EXPECT_FALSE(make()->canSendMail());
}

TEST_P(MailOnBus, FollowsAPortalThatNamesItsRequestsItself) {
    const auto composer = make();
    m_desktop.namesRequestsItself = true;
    QStringList outcomes;
    for (int mail = 0; mail < 2; ++mail) {
        composer->compose(message(), [&outcomes](const Result<void>& result) {
            outcomes << (result ? QStringLiteral("ok") : result.error().text);
        });
        ASSERT_TRUE(settle());
    }
    EXPECT_EQ(outcomes, QStringList());
    m_desktop.respondToMail();
    EXPECT_TRUE(spinUntil([&outcomes] { return outcomes == QStringList{QStringLiteral("ok")}; }));
    m_desktop.disown(FakeDesktop::portal());
    EXPECT_TRUE(spinUntil([&outcomes] { return outcomes.size() == 2; }));
    EXPECT_EQ(outcomes.last(), QStringLiteral("The desktop's mail program did not take the mail."));
}

using MailThroughProgram = MailComposerContract;
INSTANTIATE_TEST_SUITE_P(XdgEmail, MailThroughProgram, ::testing::Values(Kind::ScreenSaver));

TEST_P(MailThroughProgram, TellsWhyItFailed) {
    const auto composer = make();
    const std::pair<const char*, const char*> exits[] = {
        {"2", "a file is missing"}, {"3", "no mail program was found"}, {"4", "xdg-email ended with 4"}};
    for (const auto& [exit, reason] : exits) {
        write(m_exit, exit);
        EXPECT_EQ(outcomeOf(*composer, message()),
                  QStringLiteral("The mail could not be handed over: %1.").arg(QLatin1String(reason)));
    }
    QFile::remove(m_programs.filePath(QStringLiteral("xdg-email")));
    EXPECT_TRUE(outcomeOf(*composer, message()).startsWith(QLatin1String("xdg-email could not be started")));
    MailMessage hostile{{}, {}, {}, {}};
    for (const char* recipient : {"--attach=/etc/passwd@", "MAILTO:a@b?attach=/etc/passwd", "nobody", ""}) {
        hostile.recipient = QString::fromLatin1(recipient);
        EXPECT_EQ(XdgEmail::arguments(hostile), QStringList{QStringLiteral("--utf8")}) << recipient;
    }
}

}  // namespace

}  // namespace tavi::test
