# Fails when a source file includes what its folder must never reach: a Qt header under the
# given folders, or a header of a folder above its own.
# Usage: cmake -DRAIZ=<source dir> -DPASTAS=core,machine [-DEXCETO=players/qt]
#              [-DREGRAS=core:machine/|shell/,midia:shell/] -P checa_inclusoes.cmake
# Each rule names a folder (its subfolders included, less the Qt adapters named in EXCETO,
# which have rules of their own) and the prefixes its includes must avoid.
string(REPLACE "," ";" PASTAS "${PASTAS}")
string(REPLACE "," ";" EXCETO "${EXCETO}")
string(REPLACE "," ";" REGRAS "${REGRAS}")

# Lists "file: lines" for each source under `pastas` (less `exceto`) with an include matching.
function(procura saida pastas exceto padrao)
  set(achados "")
  foreach(pasta IN LISTS pastas)
    file(GLOB_RECURSE fontes "${RAIZ}/${pasta}/*.h" "${RAIZ}/${pasta}/*.cpp")
    foreach(fora IN LISTS exceto)
      list(FILTER fontes EXCLUDE REGEX "^${RAIZ}/${fora}/")
    endforeach()
    foreach(fonte IN LISTS fontes)
      file(STRINGS "${fonte}" linhas REGEX "^[ \t]*#[ \t]*include[ \t]*${padrao}")
      if(linhas)
        list(APPEND achados "${fonte}: ${linhas}")
      endif()
    endforeach()
  endforeach()
  string(REPLACE ";" "\n" achados "${achados}")
  set(${saida} "${achados}" PARENT_SCOPE)
endfunction()

procura(qt "${PASTAS}" "${EXCETO}" "[<\"](Q[A-Za-z]|qt)")
if(qt)
  message(FATAL_ERROR "Qt is included where only the standard library may be:\n${qt}")
endif()
foreach(regra IN LISTS REGRAS)
  string(REPLACE ":" ";" partes "${regra}")
  list(GET partes 0 pasta)
  list(GET partes 1 acima)
  # A folder's rule leaves its Qt adapters to rules of their own.
  set(fora "${EXCETO}")
  list(REMOVE_ITEM fora "${pasta}")
  procura(achados "${pasta}" "${fora}" "[<\"](${acima})")
  if(achados)
    message(FATAL_ERROR "${pasta}/ includes a folder above it (${acima}):\n${achados}")
  endif()
endforeach()
