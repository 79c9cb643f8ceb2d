#pragma once
// A store that lives in memory: the rules of the real one (case, absent and empty values)
// without a disk behind it.

#include <map>
#include <string>
#include <utility>

#include "core/armazem.h"

namespace corvina {

class ArmazemMemoria : public Armazem {
  public:
    std::string le(const std::string& chave, const std::string& nome,
                   const std::string& padrao) override;
    bool grava(const std::string& chave, const std::string& nome,
               const std::string& valor) override;
    // The stored text as it is, empty included; nullptr when absent.
    const std::string* bruto(const std::string& chave, const std::string& nome) const;

  private:
    std::map<std::pair<std::string, std::string>, std::string> valores_; // by folded key, name
};

} // namespace corvina
