#pragma once

#include <QByteArray>
#include <memory>

struct evp_md_ctx_st;

namespace tavi {

/// SHA-256 (FIPS 180-4) of bytes as they come, by OpenSSL, which uses the processor's own instructions for it. Large
/// recordings are hashed on their way in both directions. One thread at a time.
class Sha256 {
public:
    Sha256();
    void add(QByteArrayView bytes);
    /// Of all that has been added. Once.
    QByteArray result();

private:
    struct Free {
        void operator()(evp_md_ctx_st* context) const;
    };
    std::unique_ptr<evp_md_ctx_st, Free> m_context;
};

}  // namespace tavi
