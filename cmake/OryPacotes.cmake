# Packages by CPack: Debian's on Linux, a .zip on Windows (scripts/pacote makes both).
set(CPACK_PACKAGE_NAME oryutils)
set(CPACK_PACKAGE_VENDOR OryUtils)
set(CPACK_PACKAGE_CONTACT OryUtils)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME oryutils-${PROJECT_VERSION}-windows-x86_64)
  include(CPack)
  return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# The toolkit needs the library, which no package of this machine brings.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/oryutils)
set(exata "(= ${PROJECT_VERSION})")

# ory_pacote(componente nome secao descricao [dependencias])     the one line above the description is the project's
macro(ory_pacote componente nome secao descricao)
  string(TOUPPER ${componente} maiusculo)
  list(APPEND CPACK_COMPONENTS_ALL ${componente})
  set(CPACK_DEBIAN_${maiusculo}_PACKAGE_NAME ${nome})
  set(CPACK_DEBIAN_${maiusculo}_PACKAGE_SECTION ${secao})
  set(CPACK_DEBIAN_${maiusculo}_DESCRIPTION "${descricao}")
  set(CPACK_DEBIAN_${maiusculo}_PACKAGE_DEPENDS "${ARGN}")
  # The documents of a package stand where Debian looks for them.
  install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${nome} COMPONENT ${componente})
endmacro()

set(CPACK_COMPONENTS_ALL)
ory_pacote(bibliotecas liboryutils${ORY_ABI} libs
  "Text, dates, check digits of CPF, CNPJ and state registrations, amounts in\nwords, formulas, SQL filters, dialogs in Portuguese: the shared library, and\nits interface for C.")
# The loader's list of libraries is made again when these come and go.
set(CPACK_DEBIAN_BIBLIOTECAS_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/deb/triggers)
set(CPACK_DEBIAN_QT_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/deb/triggers)
set(CPACK_DEBIAN_BIBLIOTECAS_PACKAGE_SUGGESTS liboryutils-qt${ORY_ABI})
ory_pacote(desenvolvimento liboryutils-dev libdevel
  "For development: headers, static library, CMake and pkg-config files." "liboryutils${ORY_ABI} ${exata}")
if(TARGET OryUtilsQt)
  ory_pacote(qt liboryutils-qt${ORY_ABI} libs
    "Qt 6 toolkit: the dialogs of OryUtils on Qt 6 Widgets; loaded by programs\nthat show some." "liboryutils${ORY_ABI} ${exata}")
  ory_pacote(qt_desenvolvimento liboryutils-qt-dev libdevel
    "For development with Qt 6: headers and CMake files of the toolkit."
    "liboryutils-dev ${exata}, liboryutils-qt${ORY_ABI} ${exata}, qt6-base-dev")
endif()
if(TARGET ory)
  ory_pacote(ferramentas oryutils-tools utils
    "The command ory: checks the registry numbers of customer files and calls any\nvalue operation of OryUtils.")
endif()
include(CPack)
