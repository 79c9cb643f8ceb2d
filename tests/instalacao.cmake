cmake_minimum_required(VERSION 3.25)
# Builds the Debian package, unpacks it into a scratch root outside the build tree, validates
# its desktop entry and metadata, has Debian's checker read it, and starts the installed game offscreen: a data file left out
# of the package fails here.
# Usage: cmake -DBUILD=<build dir> -P instalacao.cmake
string(RANDOM LENGTH 8 sorte)
set(raiz "/tmp/corvina-instalacao-${sorte}")
file(MAKE_DIRECTORY ${raiz})

execute_process(COMMAND cpack --config ${BUILD}/CPackConfig.cmake -B ${raiz}/pacote
                RESULT_VARIABLE status OUTPUT_VARIABLE saida ERROR_VARIABLE saida)
file(GLOB pacote ${raiz}/pacote/corvina_*.deb)
if(NOT status EQUAL 0 OR NOT pacote)
  message(FATAL_ERROR "cpack: ${status}\n${saida}")
endif()
file(SIZE ${pacote} tamanho)
message(STATUS "package: ${pacote}, ${tamanho} bytes")
execute_process(COMMAND dpkg-deb -x ${pacote} ${raiz}/raiz RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "dpkg-deb -x: ${status}")
endif()

set(usr ${raiz}/raiz/usr)
foreach(arquivo games/corvina games/corvinahlp libexec/corvina/corvina-instala
        share/games/corvina/mesa.png share/games/corvina/sons/click2.wav
        share/games/corvina/sons/passport.mid share/games/corvina/janelas/frmnome.png
        share/icons/hicolor/256x256/apps/br.com.lunaris.Corvina.png
        share/polkit-1/actions/br.com.lunaris.Corvina.atualiza.policy
        share/man/man6/corvina.6.gz share/doc/corvina/copyright share/doc/corvina/changelog.gz)
  if(NOT EXISTS ${usr}/${arquivo})
    message(FATAL_ERROR "the package lacks ${arquivo}")
  endif()
endforeach()
execute_process(COMMAND desktop-file-validate ${usr}/share/applications/br.com.lunaris.Corvina.desktop
                RESULT_VARIABLE status OUTPUT_VARIABLE saida ERROR_VARIABLE saida)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "desktop-file-validate:\n${saida}")
endif()
execute_process(COMMAND appstreamcli validate --no-net
                        ${usr}/share/metainfo/br.com.lunaris.Corvina.metainfo.xml
                RESULT_VARIABLE status OUTPUT_VARIABLE saida ERROR_VARIABLE saida)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "appstreamcli validate:\n${saida}")
endif()

# Debian's own checker: no error and no warning.
execute_process(COMMAND lintian --fail-on error,warning ${pacote}
                RESULT_VARIABLE status OUTPUT_VARIABLE saida ERROR_VARIABLE saida)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "lintian:\n${saida}")
endif()
message(STATUS "lintian: ${saida}")

# The installed game, started as on a first day: it must still be running, having found all
# its pictures, when the time is up.
file(MAKE_DIRECTORY ${raiz}/casa)
execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen HOME=${raiz}/casa
                        XDG_CONFIG_HOME=${raiz}/casa/.config XDG_DATA_HOME=${raiz}/casa/.local
                        ${usr}/games/corvina
                TIMEOUT 4 RESULT_VARIABLE status OUTPUT_VARIABLE saida ERROR_VARIABLE saida)
file(REMOVE_RECURSE ${raiz})
if(NOT status MATCHES "timeout")
  message(FATAL_ERROR "the installed game ended by itself (${status}):\n${saida}")
endif()
if(saida MATCHES "could not read")
  message(FATAL_ERROR "the installed game misses files:\n${saida}")
endif()
