# What a desktop needs of the game: the program, what it finds beside it, its entry in the menu, its icons, what a
# software centre and `man` tell of it, its licence. resources/desktop is made by tools/desktop/make-desktop.
option(VORBEL_INSTALL_SIMULATOR "Install vorbel-sim too" OFF)
set(resources ${PROJECT_SOURCE_DIR}/resources)

install(TARGETS vorbel)
install(FILES docs/man/vorbel.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
if(VORBEL_INSTALL_SIMULATOR)
    install(TARGETS vorbel-sim)
    install(FILES docs/man/vorbel-sim.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
endif()
install(FILES LICENSE CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

install(DIRECTORY ${resources}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vorbel
    FILES_MATCHING PATTERN "*.png" PATTERN "*.wav" PATTERN "*.mp3" PATTERN "*.html" PATTERN "*.css" PATTERN "*.jpg"
    PATTERN desktop EXCLUDE PATTERN pictures EXCLUDE)
install(FILES ${resources}/desktop/vorbel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${resources}/desktop/example.vorbel.vorbel.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

foreach(size 16 22 24 32 48 64 96 128 256 512)
    install(FILES ${resources}/Icon${size}.png RENAME vorbel.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES ${resources}/pictures/Icon.svg RENAME vorbel.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
