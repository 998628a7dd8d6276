# A room is a small static library: its arrows to other rooms are its link dependencies, so a test program that links
# only the room it tests fails to link when an arrow points the wrong way.

add_library(ory_opcoes INTERFACE)
target_compile_features(ory_opcoes INTERFACE cxx_std_20)
target_include_directories(ory_opcoes INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/include)
target_compile_options(ory_opcoes INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(NOT WIN32 AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # A unique symbol, as the standard library's templates bring along, would keep the library loaded for ever.
  target_compile_options(ory_opcoes INTERFACE -fno-gnu-unique)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  # The tables of powers that the compiler works out take more steps than it allows by itself.
  target_compile_options(ory_opcoes INTERFACE -fconstexpr-steps=100000000)
endif()
if(ORY_AVISOS_SAO_ERROS)
  target_compile_options(ory_opcoes INTERFACE -Werror)
endif()
# The system's own libraries, for the rooms that call them.
if(WIN32)
  target_compile_definitions(ory_opcoes INTERFACE _WIN32_WINNT=0x0A00 UNICODE _UNICODE)
  set(ORY_SISTEMA user32 advapi32 bcrypt gdi32 comctl32 comdlg32 ole32 shell32 uuid version
                  ws2_32 iphlpapi psapi)
else()
  set(ORY_SISTEMA ${CMAKE_DL_LIBS})
endif()
target_link_libraries(ory_opcoes INTERFACE ${ORY_SISTEMA})
if(ORY_SANITIZADORES)
  target_compile_options(ory_opcoes INTERFACE -fsanitize=${ORY_SANITIZADORES} -fno-sanitize-recover=all
                                             -fno-omit-frame-pointer -O1)
  target_link_options(ory_opcoes INTERFACE -fsanitize=${ORY_SANITIZADORES})
endif()

# ory_comodo(nome PASTA pasta [DEPENDE comodo...])
#   Builds ory_<nome> from the sources of oryutils/<pasta>, of its interno/ and, where they exist, of the folder of
#   this system (linux/ or windows/). The whole library is made of the objects of all rooms.
function(ory_comodo nome)
  cmake_parse_arguments(C "" "PASTA" "DEPENDE" ${ARGN})
  set(raiz ${PROJECT_SOURCE_DIR}/oryutils/${C_PASTA})
  if(WIN32)
    set(sistema windows win32)
  else()
    set(sistema linux)
  endif()
  set(padroes)
  foreach(pasta . interno console ${sistema})
    list(APPEND padroes ${raiz}/${pasta}/*.cpp)
  endforeach()
  file(GLOB fontes CONFIGURE_DEPENDS ${padroes})
  if(NOT fontes)
    add_library(ory_${nome} INTERFACE)
    target_link_libraries(ory_${nome} INTERFACE ory_opcoes ${C_DEPENDE})
    return()
  endif()
  add_library(ory_${nome} STATIC ${fontes})
  target_link_libraries(ory_${nome} PUBLIC ory_opcoes ${C_DEPENDE})
  target_compile_definitions(ory_${nome} PRIVATE ORYUTILS_EXPORTS)
  set_target_properties(ory_${nome} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden
                                               VISIBILITY_INLINES_HIDDEN ON)
  set_property(GLOBAL APPEND PROPERTY ORY_COMODOS ory_${nome})
endfunction()
