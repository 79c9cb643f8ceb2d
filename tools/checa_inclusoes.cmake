# Fails when a source file includes what its folder must never reach: a Qt header under the
# given folders, or a header of the machine's levels under the table's core.
# Usage: cmake -DRAIZ=<source dir> -DPASTAS=core,machine [-DEXCETO=players/qt]
#              [-DSEM_MAQUINA=core] -P checa_inclusoes.cmake
string(REPLACE "," ";" PASTAS "${PASTAS}")
string(REPLACE "," ";" EXCETO "${EXCETO}")
string(REPLACE "," ";" SEM_MAQUINA "${SEM_MAQUINA}")

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
procura(maquina "${SEM_MAQUINA}" "" "[<\"]machine/")
if(maquina)
  message(FATAL_ERROR "The table's core includes the machine:\n${maquina}")
endif()
