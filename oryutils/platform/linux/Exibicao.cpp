#include "oryutils/platform/linux/Exibicao.hpp"

#include "oryutils/platform/BibliotecaDinamica.hpp"
#include "oryutils/platform/VariavelDeAmbiente.hpp"
#include "oryutils/platform/linux/Descritor.hpp"

#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <link.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace OryUtils::Interno {
namespace {

// The X library itself tries the connection: it knows remote displays and their cookies.
bool RespondeX11() {
    if (BuscarVariavelDeAmbiente("DISPLAY").empty()) return false;
    const TBibliotecaDinamica xcb(u"libxcb.so.1");
    const auto conectar = xcb.Buscar<void*(const char*, int*)>("xcb_connect");
    const auto falhou = xcb.Buscar<int(void*)>("xcb_connection_has_error");
    const auto desconectar = xcb.Buscar<void(void*)>("xcb_disconnect");
    if (!conectar || !falhou || !desconectar) return false;
    void* conexao = conectar(nullptr, nullptr);
    const bool responde = falhou(conexao) == 0;
    desconectar(conexao);
    return responde;
}

bool RespondeWayland() {
    std::string caminho = BuscarVariavelDeAmbiente("WAYLAND_DISPLAY");
    if (caminho.empty()) return false;
    if (caminho.front() != '/') caminho = BuscarVariavelDeAmbiente("XDG_RUNTIME_DIR") + "/" + caminho;
    sockaddr_un endereco{};
    endereco.sun_family = AF_UNIX;
    if (caminho.size() >= sizeof endereco.sun_path) return false;
    std::memcpy(endereco.sun_path, caminho.c_str(), caminho.size());
    const TDescritor soquete(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    return ::connect(soquete.Get(), reinterpret_cast<const sockaddr*>(&endereco), sizeof endereco) == 0;
}

}  // namespace

bool PossuiExibicao() { return RespondeX11() || RespondeWayland(); }

std::string BuscarPastaDoModulo() {
    Dl_info dados{};
    void* extra = nullptr;
    const void* aqui = reinterpret_cast<const void*>(&BuscarPastaDoModulo);
    if (::dladdr1(aqui, &dados, &extra, RTLD_DL_LINKMAP) == 0) return {};
    const auto* mapa = static_cast<const link_map*>(extra);
    // The program itself has no name there, or the relative one that it was called by.
    const bool biblioteca = mapa && mapa->l_name && mapa->l_name[0] == '/';
    std::error_code erro;
    return std::filesystem::canonical(biblioteca ? mapa->l_name : "/proc/self/exe", erro).parent_path();
}

}  // namespace OryUtils::Interno
