// Objects of OpenSSL that free themselves.
#pragma once

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include <memory>

namespace verlume::qt {

template <auto kFree>
struct FreeWith {
  template <class T>
  void operator()(T* object) const {
    kFree(object);
  }
};

using KeyObject = std::unique_ptr<EVP_PKEY, FreeWith<EVP_PKEY_free>>;
using CertificateObject = std::unique_ptr<X509, FreeWith<X509_free>>;
using Bio = std::unique_ptr<BIO, FreeWith<BIO_free>>;

}  // namespace verlume::qt
