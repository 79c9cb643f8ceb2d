#pragma once
// The store of settings and records: text values under keys. An empty value reads as absent.

#include <string>

namespace corvina {

class Armazem {
  public:
    virtual ~Armazem() = default;
    // padrao when the value is absent or empty; a default of "True" reads as "1".
    virtual std::string le(const std::string& chave, const std::string& nome,
                           const std::string& padrao) = 0;
    // True when the value is known to be stored; a value that can't be stored is lost.
    virtual bool grava(const std::string& chave, const std::string& nome,
                       const std::string& valor) = 0;
};

} // namespace corvina
