# A real install and the Debian package made of it: the programs, their data, a desktop entry,
# AppStream metadata, icons, the update helper with its polkit action, manual pages, the
# copyright and the changelog.
set(CORVINA_ID "br.com.lunaris.Corvina")
set(instalacao ${CMAKE_CURRENT_SOURCE_DIR}/shell/instalacao)
install(TARGETS corvina corvinahlp RUNTIME DESTINATION ${CORVINA_INSTALL_JOGOS})
install(TARGETS corvina-instala RUNTIME DESTINATION ${CORVINA_INSTALL_AJUDANTE})
install(DIRECTORY assets/ DESTINATION ${CORVINA_INSTALL_DADOS} PATTERN icones EXCLUDE)
install(FILES ${instalacao}/${CORVINA_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
configure_file(${instalacao}/${CORVINA_ID}.metainfo.xml.in ${CORVINA_ID}.metainfo.xml @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${CORVINA_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
configure_file(${instalacao}/${CORVINA_ID}.atualiza.policy.in ${CORVINA_ID}.atualiza.policy @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${CORVINA_ID}.atualiza.policy
        DESTINATION ${CMAKE_INSTALL_DATADIR}/polkit-1/actions)
foreach(lado 16 24 32 48 64 128 256)
  install(FILES assets/icones/${lado}.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${lado}x${lado}/apps
          RENAME ${CORVINA_ID}.png)
endforeach()

# Manual pages and the changelog go compressed, with no name or time stamp inside, so that
# the same sources make the same package.
set(comprimidos)
foreach(fonte corvina.6 corvinahlp.6 changelog)
  add_custom_command(OUTPUT ${fonte}.gz
    COMMAND gzip -9n -c ${instalacao}/${fonte} > ${CMAKE_CURRENT_BINARY_DIR}/${fonte}.gz
    DEPENDS ${instalacao}/${fonte} VERBATIM)
  list(APPEND comprimidos ${CMAKE_CURRENT_BINARY_DIR}/${fonte}.gz)
endforeach()
add_custom_target(documentos_do_pacote ALL DEPENDS ${comprimidos})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/corvina.6.gz ${CMAKE_CURRENT_BINARY_DIR}/corvinahlp.6.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${instalacao}/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/corvina)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME corvina)
set(CPACK_PACKAGE_VENDOR "Lunaris")
set(CPACK_PACKAGE_CONTACT "Lunaris <suporte@lunaris.com.br>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "rummy card game against the machine")
set(CPACK_PACKAGE_DESCRIPTION "Corvina is a card game of the rummy family for one person against a
machine player: two packs, nine cards a side, three trincas win a hand,
four hands a match. Its texts are in Brazilian Portuguese.")
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
# What the binaries don't name: the soundfont of the music, the font of the pictures' texts,
# Qt's plugins for the screen, and pkexec, which starts the update helper.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "timgm6mb-soundfont | sf2-soundfont-gm, fonts-dejavu-core, qt6-qpa-plugins, pkexec")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${CORVINA_SITE}")
include(CPack)
