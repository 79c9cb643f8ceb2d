#pragma once
// Reaching a user's file as root without trusting any name twice: the path is walked one
// folder at a time from a descriptor, no link is ever followed, every folder on the way must be
// the user's (or root's) and closed to others' writing, and the file itself is opened for
// reading only after its descriptor shows a regular file of the user's.

#include <sys/types.h>

#include <string>

#include "arquivos/descritor.h"

namespace corvina {

// Who the file must belong to: the user, and the user's own group (a folder that this group
// may write is still the user's alone).
struct DonoDoArquivo {
    uid_t usuario = 0;
    gid_t grupo = 0;
};

// `arquivo` is an absolute path below the folder `casa`. Opens it for reading, or gives an
// empty descriptor: the caller learns nothing of why, so that a refusal tells nothing of what
// lies on a path the user can't see.
Descritor abreArquivoDoUsuario(const std::string& casa, const std::string& arquivo,
                               DonoDoArquivo dono);

} // namespace corvina
