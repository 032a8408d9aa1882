#include "TlsWitness.h"

#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

#include <array>

namespace tarnel::account {
namespace {

std::string base64(const unsigned char* bytes, int size) {
  std::string text(static_cast<std::size_t>((size + 2) / 3 * 4 + 1), '\0');
  text.resize(static_cast<std::size_t>(EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()), bytes, size)));
  return text;
}

std::string fingerprintOf(X509* certificate) {
  unsigned char* key = nullptr;
  const int size = i2d_PUBKEY(X509_get0_pubkey(certificate), &key);
  if (size <= 0) return {};
  std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
  unsigned int length = 0;
  const int done = EVP_Digest(key, static_cast<std::size_t>(size), digest.data(), &length, EVP_sha256(), nullptr);
  OPENSSL_free(key);
  return done == 1 ? "sha256//" + base64(digest.data(), static_cast<int>(length)) : std::string();
}

int witnessIndex() {
  static const int index = SSL_CTX_get_ex_new_index(0, nullptr, nullptr, nullptr, nullptr);
  return index;
}

int onCertificate(int good, X509_STORE_CTX* store) {
  auto* ssl = static_cast<SSL*>(X509_STORE_CTX_get_ex_data(store, SSL_get_ex_data_X509_STORE_CTX_idx()));
  auto* witness = static_cast<TlsWitness*>(SSL_CTX_get_ex_data(SSL_get_SSL_CTX(ssl), witnessIndex()));
  witness->see(good == 1, store);
  return good;
}

}  // namespace

void TlsWitness::watch(void* context) {
  auto* tls = static_cast<SSL_CTX*>(context);
  SSL_CTX_set_ex_data(tls, witnessIndex(), this);
  SSL_CTX_set_options(tls, SSL_OP_NO_RENEGOTIATION);  // which would call a witness that is gone
  SSL_CTX_set_verify(tls, SSL_CTX_get_verify_mode(tls), onCertificate);
}

void TlsWitness::see(bool good, void* storeContext) {
  auto* store = static_cast<X509_STORE_CTX*>(storeContext);
  if (fingerprint_.empty()) fingerprint_ = fingerprintOf(X509_STORE_CTX_get0_cert(store));
  if (!good && complaint_.empty()) complaint_ = X509_verify_cert_error_string(X509_STORE_CTX_get_error(store));
}

}  // namespace tarnel::account
