#include "adapters/webdav/Sha256.h"

#include <openssl/evp.h>

#include <QtGlobal>

namespace tavi {

namespace {

/// A hash that says nothing would make different contents look the same.
void expect(bool isDone) {
    if (!isDone) {
        qFatal("SHA-256 cannot be reckoned");
    }
}

}  // namespace

void Sha256::Free::operator()(evp_md_ctx_st* context) const {
    EVP_MD_CTX_free(context);
}

Sha256::Sha256() : m_context(EVP_MD_CTX_new()) {
    expect(m_context && EVP_DigestInit_ex(m_context.get(), EVP_sha256(), nullptr) == 1);
}

void Sha256::add(QByteArrayView bytes) {
    expect(EVP_DigestUpdate(m_context.get(), bytes.data(), static_cast<std::size_t>(bytes.size())) == 1);
}

QByteArray Sha256::result() {
    QByteArray hash(EVP_MD_size(EVP_sha256()), '\0');
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): OpenSSL's bytes are unsigned
    expect(EVP_DigestFinal_ex(m_context.get(), reinterpret_cast<unsigned char*>(hash.data()), nullptr) == 1);
    return hash;
}

}  // namespace tavi
