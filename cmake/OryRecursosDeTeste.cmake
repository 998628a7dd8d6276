# ory_recursos_de_teste(alvo PASTA pasta)
#   Builds, from each .rc of the folder, a library and an executable of 32 and of 64 bits that hold nothing but the
#   resource: <name>32.dll, <name>32.exe, <name>64.dll, <name>64.exe. The target's ORY_RECURSOS_DE_TESTE is their folder.
#   The resource compiler and the linker of mingw-w64 serve both systems.
find_program(ORY_WINDRES x86_64-w64-mingw32-windres NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_program(ORY_LIGADOR_PE x86_64-w64-mingw32-ld NO_CMAKE_FIND_ROOT_PATH REQUIRED)

function(ory_recursos_de_teste alvo)
  cmake_parse_arguments(R "" "PASTA" "" ${ARGN})
  set(destino ${CMAKE_CURRENT_BINARY_DIR}/recursos)
  file(MAKE_DIRECTORY ${destino})
  set(roteiro ${R_PASTA}/so_recursos.ld)
  file(GLOB fontes CONFIGURE_DEPENDS ${R_PASTA}/*.rc)
  set(produtos)
  foreach(fonte ${fontes})
    get_filename_component(nome ${fonte} NAME_WE)
    foreach(bits 32 64)
      set(formato_32 pe-i386)
      set(formato_64 pe-x86-64)
      set(emulacao_32 i386pe)
      set(emulacao_64 i386pep)
      set(base ${destino}/${nome}${bits})
      # "cat" for a preprocessor: the sources need none, and the machine may have no compiler for Windows.
      add_custom_command(
        OUTPUT ${base}.dll ${base}.exe
        COMMAND ${ORY_WINDRES} --preprocessor=cat -c 65001 -F ${formato_${bits}} -i ${fonte} -o ${base}.o
        COMMAND ${ORY_LIGADOR_PE} -m ${emulacao_${bits}} -T ${roteiro} -e 0 -shared -o ${base}.dll ${base}.o
        COMMAND ${ORY_LIGADOR_PE} -m ${emulacao_${bits}} -T ${roteiro} -e 0 -o ${base}.exe ${base}.o
        DEPENDS ${fonte} ${roteiro}
        VERBATIM)
      list(APPEND produtos ${base}.dll ${base}.exe)
    endforeach()
  endforeach()
  add_custom_target(${alvo}_recursos DEPENDS ${produtos})
  add_dependencies(${alvo} ${alvo}_recursos)
  target_compile_definitions(${alvo} PRIVATE ORY_RECURSOS_DE_TESTE="${destino}")
endfunction()
