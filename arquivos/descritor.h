#pragma once
// A file descriptor, closed with its holder.

namespace corvina {

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

} // namespace corvina
