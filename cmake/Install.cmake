# The program, what it finds beside it once installed, and its entry in the desktop's menu.
include(GNUInstallDirs)
set(resources ${PROJECT_SOURCE_DIR}/resources)
install(TARGETS vorbel)
install(DIRECTORY ${resources}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vorbel
    FILES_MATCHING PATTERN "*.png" PATTERN "*.wav" PATTERN "*.mp3" PATTERN "*.html" PATTERN "*.css" PATTERN "*.jpg"
    PATTERN pictures EXCLUDE)
install(FILES ${resources}/vorbel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
foreach(size 16 22 32 48 64 128 256)
    install(FILES ${resources}/Icon${size}.png RENAME vorbel.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES ${resources}/pictures/Icon.svg RENAME vorbel.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
