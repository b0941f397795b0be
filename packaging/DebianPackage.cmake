# `cpack -G DEB`: a package for the desk and one for the terminal.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_VENDOR "The Ordwise developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "tutor and solver for school mathematics")
set(CPACK_PACKAGE_CONTACT "The Ordwise developers <ordwise@halvern.example>")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)

# The files of a package are dated by its version, so that two builds make the same package.
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/PackageDate.cmake @ONLY CONTENT [=[
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  set(ENV{SOURCE_DATE_EPOCH} @version_epoch@)
endif()
]=])
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_BINARY_DIR}/PackageDate.cmake)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_ORDWISE_PACKAGE_NAME ordwise)
set(CPACK_DEBIAN_ORDWISE_PACKAGE_SECTION education)
set(CPACK_DEBIAN_ORDWISE_PACKAGE_DEPENDS fonts-texgyre)
set(CPACK_DEBIAN_ORDWISE_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_ORDWISE_PACKAGE_SUGGESTS ordwise-cli)
set(CPACK_DEBIAN_ORDWISE_DESCRIPTION "Choose one of about a hundred topics, from place value, fractions, percents
and geometry up to first equations and polynomials, and type a problem as on
paper. Every key is checked as it is typed. Solve works the problem the way a
student writes it down: one step a line, each line with the reason for it.
.
This package holds the desk, a program with windows.")

set(CPACK_DEBIAN_ORDWISE-CLI_PACKAGE_NAME ordwise-cli)
set(CPACK_DEBIAN_ORDWISE-CLI_PACKAGE_SECTION education)
set(CPACK_DEBIAN_ORDWISE-CLI_PACKAGE_SUGGESTS ordwise)
set(CPACK_DEBIAN_ORDWISE-CLI_DESCRIPTION "Works problems of about a hundred topics, from place value, fractions, percents
and geometry up to first equations and polynomials, the way a student writes
them down: one step a line, each line with the reason for it. Also makes up
example problems and practice tests with answer keys.
.
This package holds the terminal program, for people, scripts and servers; it
speaks JSON and needs no window library.")

include(CPack)
