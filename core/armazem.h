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
    // True when the value is known to be stored (inside a batch: kept for the batch's write);
    // a value that can't be stored is lost.
    virtual bool grava(const std::string& chave, const std::string& nome,
                       const std::string& valor) = 0;

    // Several values changed as one: from abreLote to its fechaLote nothing reaches the disk,
    // and then everything does, in one write. Batches nest; the outermost one writes.
    virtual void abreLote() {}
    virtual void fechaLote() {}
};

} // namespace corvina
