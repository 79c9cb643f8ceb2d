#pragma once
// Reaching a user's file as root without trusting any name twice: the path is walked one
// folder at a time from a descriptor, no link is ever followed, every folder on the way must be
// the user's (or root's) and closed to others' writing, and the file itself is opened for
// reading only after its descriptor shows a regular file of the user's.

#include <sys/types.h>

#include <string>

namespace corvina {

// Who the file must belong to: the user, and the user's own group (a folder that this group
// may write is still the user's alone).
struct DonoDoArquivo {
    uid_t usuario = 0;
    gid_t grupo = 0;
};

// A descriptor, closed with its holder.
class Descritor {
  public:
    Descritor() = default;
    explicit Descritor(int fd) : fd_(fd) {}
    Descritor(Descritor&& o) noexcept : fd_(o.solta()) {}
    Descritor& operator=(Descritor&& o) noexcept;
    Descritor(const Descritor&) = delete;
    Descritor& operator=(const Descritor&) = delete;
    ~Descritor();

    int fd() const { return fd_; }
    explicit operator bool() const { return fd_ >= 0; }
    int solta() {
        const int fd = fd_;
        fd_ = -1;
        return fd;
    }

  private:
    int fd_ = -1;
};

// `arquivo` is an absolute path below the folder `casa`. Opens it for reading, or gives an
// empty descriptor: the caller learns nothing of why, so that a refusal tells nothing of what
// lies on a path the user can't see.
Descritor abreArquivoDoUsuario(const std::string& casa, const std::string& arquivo,
                               DonoDoArquivo dono);

} // namespace corvina
