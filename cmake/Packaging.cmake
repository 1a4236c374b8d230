# `make package`: a Debian package of the installed programs and desktop files (packaging/).
include(GNUInstallDirs)

# `make package` builds just the installed targets; without this, packaging would first build
# everything, tests and benchmarks included.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

install(TARGETS tessarine-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(NOT TESSARINE_CORE_ONLY)
    install(TARGETS tessarine RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessarine)
set(CPACK_PACKAGE_VENDOR "The Tessarine developers")
set(CPACK_PACKAGE_CONTACT "The Tessarine developers <tessarine@users.noreply.github.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "disk-space analyzer with treemaps and a scan history")
# CPack indents the lines and writes the empty one as Debian's " .".
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Tessarine walks a folder in the background with live progress, then shows
where the space went: totals, insights, file categories, extensions, folder
depths, the largest files and treemaps of the largest folders. Every result
is kept in a scan history that compares scans and charts a folder's growth,
and can be exported as JSON or CSV. It never changes the files it scans.

tessarine-cli does the same from a terminal, a script or a timer.")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${TESSARINE_HOMEPAGE})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Debian's policy for directories, whatever the umask of the machine that builds.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# The shared libraries come from dpkg-shlibdeps; what it cannot see are the QML modules, the
# platform plugins and the fonts, which are loaded by name at run time.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(NOT TESSARINE_CORE_ONLY)
    set(runtime_packages
        qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
        qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-layouts
        qml6-module-qtquick-controls qml6-module-qtquick-templates
        qml6-module-qtquick-dialogs qml6-module-qt-labs-folderlistmodel
        qt6-qpa-plugins qt6-xdgdesktopportal-platformtheme)
    if(NOT TESSARINE_EMBED_FONTS)
        list(APPEND runtime_packages fonts-inter fonts-material-design-icons-iconfont)
    endif()
    list(JOIN runtime_packages ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
endif()

# Without it a Wayland session runs the window through XWayland, which works but blurs when scaled.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)

include(CPack)
