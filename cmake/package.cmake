# The package for Debian, made by scripts/package.sh.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pozhil)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Pozhil developers <maintainers@pozhil.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Applications are built by em++, which is large and may come later. What else it needs scripts/package.sh
# tells: cpack's own search for libraries fails at Tamil names.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-core")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "emscripten (>= 3.1), bash-completion")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "programming language written in Tamil")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Keywords, built-ins, word operators and error messages of this language are
all Tamil, for learners and makers of small programs who want to write in
their own language. A program becomes one C++ file, which g++ builds; a web
application is built by em++ and shown in the browser.

The companion command pozhil-thunai checks, formats, runs, explains and
publishes programs.")
set(debian "${CMAKE_SOURCE_DIR}/packaging/debian")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${debian}/postinst;${debian}/prerm;${debian}/triggers")
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_SOURCE_DIR}/cmake/package_contents.cmake")
install(FILES packaging/debian/copyright DESTINATION share/doc/pozhil)
install(FILES packaging/debian/changelog DESTINATION share/doc/pozhil)
install(FILES packaging/debian/pozhil.lintian-overrides DESTINATION share/lintian/overrides
        RENAME pozhil)
include(CPack)
