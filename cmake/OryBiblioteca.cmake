# The number of the binary interface: in the file name of every shared library and in the names of their packages.
set(ORY_ABI ${PROJECT_VERSION_MAJOR})

# ory_biblioteca(alvo)
#   What every shared library of the project has: the number of its binary interface in the file name, neighbours of the
#   same folder found, and no symbol exported besides those of simbolos.map beside its CMakeLists.txt.
function(ory_biblioteca alvo)
  set_target_properties(${alvo} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${ORY_ABI} INSTALL_RPATH $ORIGIN)
  if(WIN32)
    # dllexport alone decides what is exported there.
    set_target_properties(${alvo} PROPERTIES RUNTIME_OUTPUT_NAME ${alvo}-${ORY_ABI})
  else()
    set(simbolos ${CMAKE_CURRENT_SOURCE_DIR}/simbolos.map)
    target_link_options(${alvo} PRIVATE LINKER:--version-script=${simbolos})
    set_property(TARGET ${alvo} APPEND PROPERTY LINK_DEPENDS ${simbolos})
  endif()
endfunction()
