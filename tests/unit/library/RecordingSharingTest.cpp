#include "library/RecordingSharing.h"

#include <gtest/gtest.h>

#include <QUrl>
#include <fstream>

#include "files/FileUri.h"
#include "support/FakeServices.h"
#include "support/FakeSharing.h"
#include "support/Texts.h"

namespace tavi::test {
namespace {

using Path = std::filesystem::path;

/// A recording that is there, one that has gone, and a folder in the place of one.
class RecordingSharingTest : public ::testing::Test {
protected:
    /// The ids of what has been said since it was last asked.
    QStringList said() {
        QStringList texts;
        for (const Notice& notice : std::exchange(fakes.notices.posted, {})) {
            texts << notice.text;
        }
        for (const Alert& alert : std::exchange(fakes.presenter.alerts, {})) {
            texts << alert.title + QLatin1Char('/') + alert.message;
        }
        return texts;
    }
    void upload(const std::optional<PickedDocument>& to) {
        picker.answer = to;
        sharing.upload(file);
        fakes.runLoop.drain();
    }
    static Path written(const Path& path, const char* text) {
        EXPECT_TRUE(std::ofstream(path) << text);
        return path;
    }
    static std::string contents(const Path& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    struct : FakeServices {
        FakePresenter presenter;
    } fakes;
    FakeDocumentInteraction documents;
    FakeDocumentPicker picker;
    FakeMailComposer mail;
    FakePasteboard pasteboard;
    RecordingExport exporter{{.documentPicker = picker,
                              .presenter = fakes.presenter,
                              .notices = fakes.notices,
                              .notifications = fakes.notifications,
                              .container = fakes.container,
                              .runLoop = fakes.runLoop}};
    RecordingSharing sharing{{.docController = documents,
                              .picker = mail,
                              .pasteboard = pasteboard,
                              .presenter = fakes.presenter,
                              .notices = fakes.notices,
                              .runLoop = fakes.runLoop,
                              .exporter = exporter}};
    const Path file = written(fakes.container.documentsPath() / "a\xff %\n.M4a", "sound");
    const Path gone = fakes.container.documentsPath() / "gone.wav";
    const Path folder = fakes.container.documentsPath();
    const Path target = fakes.container.root() / "stick.m4a";
};

TEST_F(RecordingSharingTest, EachDeedIsDoneOrSaidInOneLine) {
    const std::function<void(const Path&)> deeds[] = {[this](const Path& path) { sharing.openIn(path, {}); },
                                                      [this](const Path& path) { sharing.showInFolder(path); },
                                                      [this](const Path& path) { sharing.mail(path); },
                                                      [this](const Path& path) { sharing.upload(path); },
                                                      [this](const Path& path) { sharing.copyToClipboard({path}); }};
    for (const auto& deed : deeds) {
        for (const auto& [path, id] : {std::pair(gone, "share_gone"), std::pair(folder, "share_no_file")}) {
            deed(path);
            EXPECT_EQ(said(), QStringList{QLatin1String(id)});
        }
    }
    const auto doAll = [&] {
        std::for_each(std::begin(deeds), std::end(deeds), [this](const auto& deed) { deed(file); });
        return said().join(QLatin1Char(' '));
    };
    EXPECT_EQ(doAll(), QStringLiteral("share_copied"));
    documents.result = failure({});
    mail.result = failure({});
    picker.answer = failure({});
    EXPECT_EQ(doAll(),
              QStringLiteral("share_open_failed share_folder_failed share_mail_failed export_no_dialog share_copied"));
    mail.canSend = false;
    EXPECT_TRUE(doAll().contains(QLatin1String("share_mail_none")));
    const std::vector<Path> thrice{file, file, file};
    EXPECT_EQ(documents.opened, thrice);
    EXPECT_EQ(documents.shown, thrice);
    EXPECT_EQ(picker.asked, thrice);
    EXPECT_EQ(mail.messages.size(), 2U);
}

TEST_F(RecordingSharingTest, MailsUpToTwentyFiveMegabytesAndSaysSentWhereThatIsKnown) {
    constexpr std::uintmax_t kLargest = 25U << 20U;
    std::filesystem::resize_file(file, kLargest);
    sharing.mail(file);
    ASSERT_EQ(mail.messages.size(), 1U);
    EXPECT_EQ(mail.messages[0].subject, QStringLiteral("picke_subject"));
    ASSERT_EQ(mail.messages[0].attachments.size(), 1U);
    EXPECT_EQ(mail.messages[0].attachments[0].path, file);
    EXPECT_EQ(mail.messages[0].attachments[0].mimeType, QStringLiteral("audio/M4a"));
    mail.result = MailComposeResult::Cancelled;
    sharing.mail(file);
    EXPECT_EQ(said(), QStringList());
    mail.result = MailComposeResult::Sent;
    sharing.mail(file);
    EXPECT_EQ(said(), QStringList{QStringLiteral("Your Mail has been sent successfully/")});
    std::filesystem::resize_file(file, kLargest + 1);
    mail.canSend = false;
    sharing.mail(file);
    EXPECT_EQ(said(), QStringList{QStringLiteral("alert_error/file_size_msg")}) << "looked at before all else";
}

TEST_F(RecordingSharingTest, CopiesAreWholeAndReplaceOnlyWhatTheUserAgreedToReplace) {
    upload(std::nullopt);
    EXPECT_EQ(said(), QStringList());
    upload(PickedDocument{target});
    EXPECT_EQ(contents(target), "sound");
    ASSERT_EQ(fakes.notices.posted.size(), 1U);
    fakes.notices.posted[0].action();
    EXPECT_EQ(documents.shown, std::vector{target});
    EXPECT_EQ(said(), QStringList{QStringLiteral("export_done")});

    written(target, "other");
    upload(PickedDocument{target});
    EXPECT_EQ(contents(target), "other");
    ASSERT_EQ(fakes.presenter.alerts.size(), 1U);
    const AlertAction replace = fakes.presenter.alerts[0].actions.at(1);
    EXPECT_EQ(said(), QStringList{QStringLiteral("export_replace_title/export_replace_message")});
    replace.handler();
    fakes.runLoop.drain();
    EXPECT_EQ(contents(target), "sound");
    written(target, "other");
    upload(PickedDocument{target, true});
    EXPECT_EQ(contents(target), "sound");
    EXPECT_EQ(said(), (QStringList{QStringLiteral("export_done"), QStringLiteral("export_done")}));
    for (const Path& bad : {folder, Path("/nowhere/a.m4a")}) {
        upload(PickedDocument{bad, true});
        EXPECT_EQ(said(), QStringList{QStringLiteral("export_failed")}) << bad;
    }
}

TEST_F(RecordingSharingTest, ALongCopyIsShownAndLeavesNothingWhenItIsGivenUp) {
    upload(PickedDocument{folder / "first.m4a"});
    EXPECT_EQ(said(), QStringList{QStringLiteral("export_done")});
    fakes.runLoop.advance(RecordingExport::kPatience / 2);
    fakes.runLoop.holdBackground(true);
    upload(PickedDocument{target});
    upload(PickedDocument{folder / "second.m4a"});
    fakes.runLoop.advance(RecordingExport::kPatience / 2);
    EXPECT_TRUE(fakes.notices.works.empty()) << "the time of the first is no concern of the next";
    fakes.runLoop.advance(RecordingExport::kPatience / 2);
    ASSERT_EQ(fakes.notices.works.size(), 1U);
    EXPECT_EQ(fakes.notices.works[0]->notice.text, QStringLiteral("export_running"));
    const auto cancel = fakes.notices.works[0]->notice.action;
    cancel();
    cancel();
    EXPECT_TRUE(fakes.notices.works.empty());
    EXPECT_EQ(said(), QStringList{QStringLiteral("export_cancelled")});
    fakes.runLoop.advance(RecordingExport::kPatience);
    ASSERT_EQ(fakes.notices.works.size(), 1U) << "the next one goes on";
    std::vector<QString> posted;
    QObject::connect(&fakes.notifications, &NotificationCenter::posted,
                     [&posted](const QString& name) { posted.push_back(name); });
    fakes.runLoop.holdBackground(false);
    fakes.runLoop.drain();
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_EQ(contents(folder / "second.m4a"), "sound");
    EXPECT_EQ(posted, std::vector{QStringLiteral("DataUpdated")}) << "the list shows it";
    EXPECT_TRUE(fakes.notices.works.empty());
    EXPECT_EQ(said(), QStringList{QStringLiteral("export_done")});
}

TEST_F(RecordingSharingTest, FilesGoOutByTheirBytes) {
    std::vector<Path> files(500, file);
    files.push_back(gone);
    sharing.copyToClipboard(files);
    ASSERT_TRUE(pasteboard.data);
    const QList<QUrl> urls = pasteboard.data->urls();
    ASSERT_EQ(urls.size(), 500);
    const QByteArray uri = urls[499].toEncoded();
    EXPECT_TRUE(uri.endsWith("/a%FF%20%25%0A.M4a")) << uri.toStdString();
    EXPECT_EQ(pathOfFileUri(uri.toStdString()), file);
    const QByteArray copied = pasteboard.data->data(QStringLiteral("x-special/gnome-copied-files"));
    EXPECT_TRUE(copied.startsWith("copy\n" + uri + "\n"));
    EXPECT_FALSE(copied.endsWith("\n"));
    EXPECT_EQ(pasteboard.data->data(QStringLiteral("application/x-kde-cutselection")), "0");
    said();
    const Texts texts{{{"share_copied", QStringLiteral("%1")}}};
    sharing.copyToClipboard({gone, file});
    EXPECT_EQ(said(), QStringList{QStringLiteral("a\uFFFD %?.M4a")});
    EXPECT_EQ(pathOfFileUri("file://localhost/a%20b"), Path("/a b"));
    for (const char* bad :
         {"http://host/a", "file://host/a", "file:a", "file:///a%0", "file:///a%zz", "file:///a%00b"}) {
        EXPECT_EQ(pathOfFileUri(bad), std::nullopt) << bad;
    }
}

TEST_F(RecordingSharingTest, WhatIsPickedForImportIsReadAndHandedOn) {
    std::vector<std::string> names;
    QObject::connect(&sharing, &RecordingSharing::dataPicked,
                     [&names](const FileContents& data, const Path& name) { names.push_back(name / data.head(9)); });
    sharing.documentPickerDidPickDocumentAtURL(DocumentPickerMode::ExportToService, file);
    sharing.documentPickerDidPickDocumentAtURL(DocumentPickerMode::Import, gone);
    sharing.documentPickerDidPickDocumentAtURL(DocumentPickerMode::Import, written(folder / "b\xff.wav", "wav"));
    fakes.runLoop.drain();
    EXPECT_EQ(names, std::vector<std::string>{"b\xff.wav/wav"});
    EXPECT_EQ(said(), QStringList{QStringLiteral("share_gone")});
}

}  // namespace
}  // namespace tavi::test
