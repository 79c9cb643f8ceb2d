#include "arquivos/descritor.h"

#include <unistd.h>

namespace corvina {

Descritor& Descritor::operator=(Descritor&& o) noexcept {
    if (this != &o) {
        if (fd_ >= 0) ::close(fd_);
        fd_ = o.solta();
    }
    return *this;
}

Descritor::~Descritor() {
    if (fd_ >= 0) ::close(fd_);
}

} // namespace corvina
