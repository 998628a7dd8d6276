# What Windows shows of a file, and what it lets a program do.
if(WIN32)
  enable_language(RC)
endif()
set(ORY_PASTA_DOS_RECURSOS ${PROJECT_SOURCE_DIR}/packaging/windows)

# ory_recursos(alvo "Descrição")
#   Gives a program or shared library its version resource, and a program also the icon and the manifest. Nothing on
#   other systems.
function(ory_recursos ORY_ALVO ORY_DESCRICAO)
  if(NOT WIN32)
    return()
  endif()
  get_target_property(tipo ${ORY_ALVO} TYPE)
  if(tipo STREQUAL "EXECUTABLE")
    set(ORY_TIPO_DO_ARQUIVO 0x1L)
    set(ORY_NOME_DO_ARQUIVO ${ORY_ALVO}.exe)
    set(ORY_RECURSOS_DO_PROGRAMA "1 ICON \"oryutils.ico\"\n1 24 \"oryutils.manifest\"")
  else()
    set(ORY_TIPO_DO_ARQUIVO 0x2L)
    set(ORY_NOME_DO_ARQUIVO lib${ORY_ALVO}-${ORY_ABI}.dll)
    set(ORY_RECURSOS_DO_PROGRAMA "")
  endif()
  set(arquivo ${CMAKE_CURRENT_BINARY_DIR}/${ORY_ALVO}.rc)
  configure_file(${ORY_PASTA_DOS_RECURSOS}/recursos.rc.in ${arquivo} @ONLY)
  target_sources(${ORY_ALVO} PRIVATE ${arquivo})
  set_source_files_properties(${arquivo} PROPERTIES INCLUDE_DIRECTORIES ${ORY_PASTA_DOS_RECURSOS} OBJECT_DEPENDS
    "${ORY_PASTA_DOS_RECURSOS}/oryutils.manifest;${ORY_PASTA_DOS_RECURSOS}/oryutils.ico")
endfunction()
