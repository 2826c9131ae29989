#include "adapters/webdav/DavProbe.h"

#include <QRandomGenerator>

#include "adapters/webdav/WebDavMirror.h"

namespace tavi {

Result<void> probeFolder(DavClient& client) {
    auto files = client.list();
    if (!files && client.lastReply().status == 404 && client.makeFolder()) {
        files = client.list();
    }
    if (!files) {
        return tl::unexpected(files.error());
    }
    const auto name = [random = QRandomGenerator::system()->generate64()](int number) {
        return std::filesystem::path(".tavi-test-" + std::to_string(random) + std::to_string(number));
    };
    const QByteArray bytes = "Tavi\n";
    client.put(name(1), FileContents(bytes.toStdString()));
    client.move(name(1), name(2));
    const auto written = client.stat(name(2));
    client.remove(name(1));
    client.remove(name(2));
    const auto left = client.stat(name(2));
    if (!written || !left) {
        return tl::unexpected(written ? left.error() : written.error());
    }
    const bool isWritten = *written && (*written)->size == bytes.size() && !*left;
    return isWritten ? Result<void>() : failure(qtTrId("error_cloud_read_only"));
}

DavProbe::DavProbe(const DavClient::Account& account, std::function<void(Result<void>)> answered)
    : m_thread([this, account, answered = std::move(answered)] {
          if (!mayHavePassword(account)) {
              return answered(failure(qtTrId("error_cloud_in_clear")));
          }
          DavClient client(account);
          {
              const std::lock_guard lock(m_mutex);
              m_client = &client;
              m_hasEnded ? client.abort() : void();
          }
          const Result<void> answer = probeFolder(client);
          const std::lock_guard lock(m_mutex);
          m_client = nullptr;
          m_hasEnded ? void() : answered(answer);
      }) {}

DavProbe::~DavProbe() {
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        m_client != nullptr ? m_client->abort() : void();
    }
    m_thread.join();
}

}  // namespace tavi
