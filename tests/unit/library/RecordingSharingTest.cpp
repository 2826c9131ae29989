#include "library/RecordingSharing.h"

#include <gmock/gmock.h>

#include <QUrl>

#include "files/FileUri.h"
#include "support/FakeLibrary.h"
#include "support/Files.h"
#include "support/Texts.h"

namespace tavi::test {
namespace {

using Path = std::filesystem::path;

/// A recording that is there, one that has gone, and a folder in the place of one.
struct RecordingSharingTest : ::testing::Test, FakeServices {
    /// The ids of what has been said since it was last asked.
    std::string said() { return notices.said() + presenter.said(); }
    void upload(const std::optional<PickedDocument>& to) {
        picker.answer = to;
        sharing.upload(file);
        runLoop.drain();
    }

    FakeLibrary library{*this};
    RecordingSharing& sharing = library.sharing;
    FakeDocumentInteraction& documents = library.documents;
    FakeDocumentPicker& picker = library.picker;
    FakeMailComposer& mail = library.mail;
    FakePasteboard& pasteboard = library.pasteboard;
    const Path folder = container.documentsPath();
    const Path file = written(folder / "a\xff %\n.M4a");
    const Path gone = folder / "gone.wav";
    const Path target = container.root() / "stick.m4a";
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
            EXPECT_EQ(said(), id);
        }
    }
    const auto doAll = [&] {
        std::for_each(std::begin(deeds), std::end(deeds), [this](const auto& deed) { deed(file); });
        return said();
    };
    EXPECT_EQ(doAll(), "share_copied");
    documents.result = failure({});
    mail.result = failure({});
    picker.answer = failure({});
    EXPECT_EQ(doAll(), "share_open_failed share_folder_failed share_mail_failed export_no_dialog share_copied");
    mail.canSend = false;
    EXPECT_THAT(doAll(), ::testing::HasSubstr("share_mail_none"));
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
    EXPECT_EQ(said(), "");
    mail.result = MailComposeResult::Sent;
    sharing.mail(file);
    EXPECT_EQ(said(), "Your Mail has been sent successfully|");
    std::filesystem::resize_file(file, kLargest + 1);
    mail.canSend = false;
    sharing.mail(file);
    EXPECT_EQ(said(), "alert_error|file_size_msg") << "looked at before all else";
}

TEST_F(RecordingSharingTest, CopiesAreWholeAndReplaceOnlyWhatTheUserAgreedToReplace) {
    upload(std::nullopt);
    EXPECT_EQ(said(), "");
    upload(PickedDocument{target});
    EXPECT_EQ(contentsOf(target), "sound");
    ASSERT_EQ(notices.posted.size(), 1U);
    notices.posted[0].action();
    EXPECT_EQ(documents.shown, std::vector{target});
    EXPECT_EQ(said(), "export_done");

    written(target, "other");
    upload(PickedDocument{target});
    EXPECT_EQ(contentsOf(target), "other");
    ASSERT_EQ(presenter.alerts.size(), 1U);
    const AlertAction replace = presenter.alerts[0].actions.at(1);
    EXPECT_EQ(said(), "export_replace_title|export_replace_message");
    replace.handler();
    runLoop.drain();
    EXPECT_EQ(contentsOf(target), "sound");
    written(target, "other");
    upload(PickedDocument{target, true});
    EXPECT_EQ(contentsOf(target), "sound");
    EXPECT_EQ(said(), "export_done export_done");
    for (const Path& bad : {folder, Path("/nowhere/a.m4a")}) {
        upload(PickedDocument{bad, true});
        EXPECT_EQ(said(), "export_failed") << bad;
    }
}

TEST_F(RecordingSharingTest, ALongCopyIsShownAndLeavesNothingWhenItIsGivenUp) {
    upload(PickedDocument{folder / "first.m4a"});
    EXPECT_EQ(said(), "export_done");
    runLoop.advance(RecordingExport::kPatience / 2);
    runLoop.holdBackground(true);
    upload(PickedDocument{target});
    upload(PickedDocument{folder / "second.m4a"});
    runLoop.advance(RecordingExport::kPatience / 2);
    EXPECT_TRUE(notices.works.empty()) << "the time of the first is no concern of the next";
    runLoop.advance(RecordingExport::kPatience / 2);
    ASSERT_EQ(notices.works.size(), 1U);
    EXPECT_EQ(notices.works[0]->notice.text, QStringLiteral("export_running"));
    const auto cancel = notices.works[0]->notice.action;
    cancel();
    cancel();
    EXPECT_TRUE(notices.works.empty());
    EXPECT_EQ(said(), "export_cancelled");
    runLoop.advance(RecordingExport::kPatience);
    ASSERT_EQ(notices.works.size(), 1U) << "the next one goes on";
    std::vector<QString> posted;
    QObject::connect(&notifications, &NotificationCenter::posted,
                     [&posted](const QString& name) { posted.push_back(name); });
    runLoop.holdBackground(false);
    runLoop.drain();
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_EQ(contentsOf(folder / "second.m4a"), "sound");
    EXPECT_EQ(posted, std::vector{QStringLiteral("DataUpdated")}) << "the list shows it";
    EXPECT_TRUE(notices.works.empty());
    EXPECT_EQ(said(), "export_done");
}

TEST_F(RecordingSharingTest, FilesGoOutByTheirBytes) {
    std::vector<Path> many(500, file);
    many.push_back(gone);
    sharing.copyToClipboard(many);
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
    EXPECT_EQ(said(), "a\uFFFD %?.M4a");
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
    runLoop.drain();
    EXPECT_EQ(names, std::vector<std::string>{"b\xff.wav/wav"});
    EXPECT_EQ(said(), "share_gone");
}

}  // namespace
}  // namespace tavi::test
