# `make deb`: a Debian package of what `cmake --install` puts under /usr, made by CPack. Its Depends are the
# shared libraries the binaries load (dpkg-shlibdeps), and the QML modules the windows load and the history's SQLite
# driver, plugins loaded at run time that no binary links.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velto)
set(CPACK_PACKAGE_VENDOR "The Velto developers")
set(CPACK_PACKAGE_CONTACT "The Velto developers <${VELTO_CONTACT_ADDRESS}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "break reminder that lives in the system tray")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "\
Velto counts down your work time in the system tray. A minute before a
break it shows a small card that lets you take the break now, put it off
or skip it; then a calm break screen covers your displays. Smart Pause
holds the countdown during calls and meetings, videos, screen recordings,
fullscreen games and while you are away.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${PROJECT_HOMEPAGE_URL})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Velto's own libraries sit in a private directory the binaries find through their RUNPATH.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/${VELTO_PRIVATE_LIBDIR})
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qml6-module-qtquick, qml6-module-qtquick-controls, qml6-module-qtquick-layouts, qml6-module-qtquick-templates, \
qml6-module-qtquick-window, qml6-module-qtquick-shapes, qml6-module-qtqml, qml6-module-qtqml-workerscript, \
qt6-wayland, libqt6sql6-sqlite")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
# What Debian asks of every package: the copyright and the changes, compressed reproducibly.
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/package/changelog.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/package
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/docs/package/changelog > ${PROJECT_BINARY_DIR}/package/changelog.gz
    DEPENDS ${PROJECT_SOURCE_DIR}/docs/package/changelog VERBATIM)
add_custom_target(velto_package_docs ALL DEPENDS ${PROJECT_BINARY_DIR}/package/changelog.gz)
install(FILES ${PROJECT_SOURCE_DIR}/docs/package/copyright ${PROJECT_BINARY_DIR}/package/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/velto)
include(CPack)
