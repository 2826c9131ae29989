#pragma once

#include <map>
#include <utility>

#include "cloud/CloudDocuments.h"
#include "support/ManualRunLoop.h"

namespace tavi::test {

/// A cloud in memory. It completes on the run loop; whoever tests a delegate calls it.
class FakeCloudDocuments : public CloudDocuments {
public:
    explicit FakeCloudDocuments(RunLoop& runLoop) : m_runLoop(runLoop) {}

    void setDelegate(CloudDelegate* newDelegate) override { m_delegate = newDelegate; }
    CloudDelegate* delegate() const override { return m_delegate; }
    void setVerboseLogging(bool isVerbose) override { isVerboseLogging = isVerbose; }
    void setupiCloudDocumentSyncWithUbiquityContainer(const QString&) override {
        ++setups;
        m_runLoop.dispatchMain([this] {
            if (m_delegate != nullptr && hasAccount) {
                m_delegate->iCloudDidFinishInitializingWitUbiquityToken(QStringLiteral("account"), "/cloud");
            }
        });
    }
    bool quickCloudCheck() const override { return hasAccount; }
    void updateFiles() override { ++updates; }
    std::optional<std::vector<std::filesystem::path>> listCloudFiles() override {
        std::vector<std::filesystem::path> paths;
        for (const auto& [name, contents] : files) {
            paths.push_back("/cloud/Documents" / name);
        }
        return hasAccount ? std::optional(paths) : std::nullopt;
    }
    void saveAndCloseDocumentWithName(const std::filesystem::path& name, const FileContents& content,
                                      DocumentCompletion completion) override {
        saves.push_back(name);
        complete(std::move(completion), content, [this, name, content] { files[name] = content.head(content.size()); });
    }
    void retrieveCloudDocumentWithName(const std::filesystem::path& name, DocumentCompletion completion) override {
        const auto refused = std::exchange(error, files[name] == "?" ? std::optional(CloudError()) : std::nullopt);
        complete(std::move(completion), FileContents(files[name]), [] {});
        error = refused;
    }
    void deleteDocumentWithName(const std::filesystem::path& name, ErrorCompletion completion) override {
        complete(std::move(completion), [this, name] { files.erase(name); });
    }
    void renameOriginalDocument(const std::filesystem::path& name, const std::filesystem::path& newName,
                                ErrorCompletion completion) override {
        complete(std::move(completion), [this, name, newName] {
            if (auto file = files.extract(name)) {
                file.key() = newName;
                files.insert(std::move(file));
            }
        });
    }

    /// Without one nothing completes.
    bool hasAccount = true;
    /// What comes of every change from now on.
    std::optional<CloudError> error;
    /// What holds "?" cannot be read.
    std::map<std::filesystem::path, std::string> files;
    /// Names, in the order in which they were asked for.
    std::vector<std::filesystem::path> saves;
    int setups = 0;
    int updates = 0;
    bool isVerboseLogging = false;

private:
    template <class Change>
    void complete(ErrorCompletion completion, Change change) {
        if (hasAccount) {
            m_runLoop.dispatchMain([failed = error, completion = std::move(completion), change] {
                if (!failed) {
                    change();
                }
                if (completion) {
                    completion(failed);
                }
            });
        }
    }
    template <class Change>
    void complete(DocumentCompletion completion, const FileContents& contents, Change change) {
        complete(
            [completion = std::move(completion), contents](const std::optional<CloudError>& failed) {
                if (completion) {
                    completion(nullptr, contents, failed);
                }
            },
            change);
    }

    RunLoop& m_runLoop;
    CloudDelegate* m_delegate = nullptr;
};

}  // namespace tavi::test
