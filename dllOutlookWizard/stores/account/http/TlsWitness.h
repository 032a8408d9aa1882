#pragma once

#include <string>

namespace tarnel::account {

// Looks on while libcurl checks a server's certificate, and remembers whose key it was and what was wrong with it. It
// changes nothing about the check.
class TlsWitness {
 public:
  // Takes OpenSSL's SSL_CTX* of a connection about to be made. The witness has to outlive its handshake.
  void watch(void* context);

  // Of the server's public key: "sha256//" and base64, as libcurl takes a pinned key. Empty when none was seen.
  const std::string& fingerprint() const { return fingerprint_; }
  // What is wrong with the certificate; empty when nothing is.
  const std::string& complaint() const { return complaint_; }

  // Called for each certificate of the chain.
  void see(bool good, void* storeContext);

 private:
  std::string fingerprint_;
  std::string complaint_;
};

}  // namespace tarnel::account
