# What `cmake --install` puts where, in components: bibliotecas, desenvolvimento, qt, qt_desenvolvimento, ferramentas.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(ORY_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/OryUtils)

# The Qt headers have a root of their own: "toolkits" is too common a name for everybody's include folder.
set(raizes_OryTypes ${CMAKE_INSTALL_INCLUDEDIR})
set(raizes_OryUtils ${CMAKE_INSTALL_INCLUDEDIR})
set(raizes_OryUtilsC ${CMAKE_INSTALL_INCLUDEDIR})
set(raizes_OryUtilsQt ${CMAKE_INSTALL_INCLUDEDIR}/oryutils-qt)

# ory_instalar(nome ALVOS alvo... BIBLIOTECA componente DESENVOLVIMENTO componente)
#   A component of find_package(OryUtils): its targets, as Ory::..., in a file of its own.
function(ory_instalar nome)
  cmake_parse_arguments(I "" "BIBLIOTECA;DESENVOLVIMENTO" "ALVOS" ${ARGN})
  install(TARGETS ${I_ALVOS} EXPORT ${nome}
          RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${I_BIBLIOTECA}
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${I_BIBLIOTECA}
                  NAMELINK_COMPONENT ${I_DESENVOLVIMENTO}
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${I_DESENVOLVIMENTO}
          INCLUDES DESTINATION ${raizes_${nome}})
  install(EXPORT ${nome} NAMESPACE Ory:: FILE ${nome}Alvos.cmake DESTINATION ${ORY_CMAKE}
          COMPONENT ${I_DESENVOLVIMENTO})
endfunction()

foreach(alvo OryTypes OryUtils OryUtilsStatic OryUtilsC OryUtilsQt)
  if(TARGET ${alvo})
    string(REGEX REPLACE "^Ory" "" nome ${alvo})
    set_target_properties(${alvo} PROPERTIES EXPORT_NAME ${nome})
  endif()
endforeach()
ory_instalar(OryTypes ALVOS OryTypes BIBLIOTECA bibliotecas DESENVOLVIMENTO desenvolvimento)
ory_instalar(OryUtils ALVOS OryUtils OryUtilsStatic BIBLIOTECA bibliotecas DESENVOLVIMENTO desenvolvimento)
if(TARGET OryUtilsC)
  ory_instalar(OryUtilsC ALVOS OryUtilsC BIBLIOTECA bibliotecas DESENVOLVIMENTO desenvolvimento)
endif()
if(TARGET OryUtilsQt)
  ory_instalar(OryUtilsQt ALVOS OryUtilsQt BIBLIOTECA qt DESENVOLVIMENTO qt_desenvolvimento)
endif()
if(TARGET ory)
  install(TARGETS ory RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ferramentas)
endif()

# Public headers only: no room's own ones, none of the other system's, and of the rooms that ask the system just those
# that public headers include.
set(fora interno linux windows platform readers)
if(NOT WIN32)
  list(APPEND fora win32)
endif()
if(NOT TARGET OryUtilsC)
  list(APPEND fora c)
endif()
list(JOIN fora "|" fora)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/oryutils ${PROJECT_BINARY_DIR}/include/oryutils
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT desenvolvimento
        FILES_MATCHING REGEX "\\.h(pp)?$" REGEX "/oryutils/(.*/)?(${fora})(/|$)" EXCLUDE REGEX "/OryCExport\\.hpp$" EXCLUDE)
foreach(cabecalho platform/Registro.hpp platform/AlcaDeProcesso.hpp platform/Console.hpp readers/DadoRegistro.hpp
                  readers/BuscaIni.hpp)
  get_filename_component(pasta ${cabecalho} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/oryutils/${cabecalho} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/oryutils/${pasta}
          COMPONENT desenvolvimento)
endforeach()
if(TARGET OryUtilsQt)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/toolkits/qt ${PROJECT_BINARY_DIR}/include/toolkits/qt
          DESTINATION ${raizes_OryUtilsQt}/toolkits COMPONENT qt_desenvolvimento
          FILES_MATCHING PATTERN *.hpp REGEX "/qt/interno$" EXCLUDE)
endif()

if(WIN32)
  install(FILES ${PROJECT_SOURCE_DIR}/packaging/windows/oryutils.manifest DESTINATION ${CMAKE_INSTALL_DATADIR}/oryutils
          COMPONENT desenvolvimento)
endif()

configure_package_config_file(${PROJECT_SOURCE_DIR}/packaging/OryUtilsConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/instalacao/OryUtilsConfig.cmake INSTALL_DESTINATION ${ORY_CMAKE}
                              NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/instalacao/OryUtilsConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/instalacao/OryUtilsConfig.cmake
              ${PROJECT_BINARY_DIR}/instalacao/OryUtilsConfigVersion.cmake
        DESTINATION ${ORY_CMAKE} COMPONENT desenvolvimento)

# The prefix is found from where the file stands, so that an installation may be moved.
file(RELATIVE_PATH ORY_PREFIXO_RELATIVO /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(nome oryutils oryutils-c)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/${nome}.pc.in ${PROJECT_BINARY_DIR}/instalacao/${nome}.pc @ONLY)
  if(nome STREQUAL "oryutils" OR TARGET OryUtilsC)
    install(FILES ${PROJECT_BINARY_DIR}/instalacao/${nome}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
            COMPONENT desenvolvimento)
  endif()
endforeach()

if(WIN32)
  # The shared library and its users share one C++ run time; a machine without the compiler has none.
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll} OUTPUT_VARIABLE caminho
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    file(REAL_PATH ${caminho} caminho)
    install(FILES ${caminho} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT bibliotecas)
  endforeach()
endif()
include(OryPacotes)
