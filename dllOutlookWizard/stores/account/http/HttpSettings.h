#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <stop_token>
#include <string>
#include <vector>

namespace tarnel::account {

// How one account's server is spoken to.
struct HttpSettings {
  std::string user;
  std::string password;  // Digest where the server offers it, else Basic
  std::string bearer;    // a token in place of user and password

  // "sha256//" and the base64 of the server's public key: that key is trusted, whoever signed it, and no other.
  std::string pinnedKey;
  std::filesystem::path authorities;   // certificates to trust in place of the system's, a PEM file
  std::vector<std::string> moreHosts;  // lower-case; they get the password, too

  std::chrono::milliseconds connecting{15'000};
  std::chrono::seconds silence{300};  // servers were seen to think for two minutes before the first byte
  std::chrono::milliseconds whole{1'800'000};
  std::size_t largestBody = 256u << 20;  // unpacked
  std::stop_token stop;
};

}  // namespace tarnel::account
