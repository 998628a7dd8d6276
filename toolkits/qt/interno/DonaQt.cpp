#include "toolkits/qt/interno/DonaQt.hpp"

#include <QGuiApplication>
#include <QLibrary>

#include <cstdlib>
#include <xcb/xcb.h>

namespace OryUtils {
namespace {

std::uintptr_t GDona = 0;
bool GNaFrente = false;

// The library of the X server is the one that Qt's own plug-in has loaded.
template <typename T>
T* BuscarFuncao(const char* ANome) {
    return reinterpret_cast<T*>(QLibrary::resolve(QStringLiteral("libxcb"), 1, ANome));
}

template <typename T>
using TResposta = std::unique_ptr<T, decltype([](T* AResposta) { std::free(AResposta); })>;

// Qt itself does not tell whether a window of another program exists, nor where.
std::optional<QRect> BuscarLugar(xcb_window_t AJanela) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    const auto pedirTamanho = BuscarFuncao<decltype(xcb_get_geometry)>("xcb_get_geometry");
    const auto lerTamanho = BuscarFuncao<decltype(xcb_get_geometry_reply)>("xcb_get_geometry_reply");
    const auto pedirPonto = BuscarFuncao<decltype(xcb_translate_coordinates)>("xcb_translate_coordinates");
    const auto lerPonto = BuscarFuncao<decltype(xcb_translate_coordinates_reply)>("xcb_translate_coordinates_reply");
    if (!x11 || !pedirTamanho || !lerTamanho || !pedirPonto || !lerPonto) return std::nullopt;
    xcb_connection_t* conexao = x11->connection();
    xcb_generic_error_t* erro = nullptr;
    const TResposta<xcb_get_geometry_reply_t> tamanho(lerTamanho(conexao, pedirTamanho(conexao, AJanela), &erro));
    const TResposta<xcb_generic_error_t> recusa(erro);
    if (!tamanho) return std::nullopt;
    const TResposta<xcb_translate_coordinates_reply_t> ponto(
        lerPonto(conexao, pedirPonto(conexao, AJanela, tamanho->root, 0, 0), nullptr));
    if (!ponto) return std::nullopt;
    return QRect(ponto->dst_x, ponto->dst_y, tamanho->width, tamanho->height);
}

}  // namespace

TAtendimento DefinirDonaQt(std::uintptr_t AJanela) {
    GDona = 0;
    if (!AJanela) return atFeito;
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return atNaoPermite;
    if (!BuscarLugar(static_cast<xcb_window_t>(AJanela))) return atNaoExiste;
    GDona = AJanela;
    return atFeito;
}

std::optional<TDonaQt> BuscarDonaQt() {
    const auto lugar = GDona ? BuscarLugar(static_cast<xcb_window_t>(GDona)) : std::nullopt;
    if (!lugar) return std::nullopt;
    return TDonaQt{std::unique_ptr<QWindow>(QWindow::fromWinId(GDona)), *lugar};
}

TAtendimento DefinirNaFrenteQt(bool ANaFrente) {
    if (ANaFrente && QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) return atNaoPermite;
    GNaFrente = ANaFrente;
    return atFeito;
}

bool EstahNaFrenteQt() { return GNaFrente; }

}  // namespace OryUtils
