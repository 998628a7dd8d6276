#include "oryutils/platform/linux/TecladoX.hpp"

#include "oryutils/platform/BibliotecaDinamica.hpp"

#include <array>
#include <cstdlib>
#include <memory>
#include <sys/uio.h>
#include <xcb/screensaver.h>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>
#include <xcb/xtest.h>

// libxcb is loaded at run time, since most servers and batch machines have none; its headers give the types. Unlike
// libX11 it never ends the program when the X server goes away. The requests of the two extensions are sent by
// xcb_send_request, so their own small libraries are not needed.
namespace OryUtils::Interno {
namespace {

// ORY_X(Nome, xcb_nome): a member Nome that points to xcb_nome of the loaded library, null without the library.
#define ORY_X(ANome, AFuncao) decltype(&AFuncao) ANome = Biblioteca.Buscar<decltype(AFuncao)>(#AFuncao)

struct TBibliotecaX {
    TBibliotecaDinamica Biblioteca{u"libxcb.so.1"};
    ORY_X(Conectar, xcb_connect);
    ORY_X(BuscarErro, xcb_connection_has_error);
    ORY_X(Desconectar, xcb_disconnect);
    ORY_X(BuscarConfiguracao, xcb_get_setup);
    ORY_X(BuscarTelas, xcb_setup_roots_iterator);
    ORY_X(PedirPonteiro, xcb_query_pointer);
    ORY_X(LerPonteiro, xcb_query_pointer_reply);
    ORY_X(PedirMapa, xcb_get_keyboard_mapping);
    ORY_X(LerMapa, xcb_get_keyboard_mapping_reply);
    ORY_X(BuscarKeysyms, xcb_get_keyboard_mapping_keysyms);
    ORY_X(ContarKeysyms, xcb_get_keyboard_mapping_keysyms_length);
    ORY_X(PedirTeclas, xcb_query_keymap);
    ORY_X(LerTeclas, xcb_query_keymap_reply);
    ORY_X(BuscarExtensao, xcb_get_extension_data);
    ORY_X(Enviar, xcb_send_request);
    ORY_X(EsperarResposta, xcb_wait_for_reply);
};
#undef ORY_X

const TBibliotecaX& X() {
    static const TBibliotecaX biblioteca;
    return biblioteca;
}

template <typename TResposta>
using TRespostaX = std::unique_ptr<TResposta, decltype([](TResposta* AResposta) { std::free(AResposta); })>;

struct TServidorX {
    std::unique_ptr<xcb_connection_t, decltype([](xcb_connection_t* AConexao) { X().Desconectar(AConexao); })> Conexao;
    xcb_window_t Raiz = 0;  // the root window of the first screen
};

/// A connection to the server that DISPLAY names; none without a server, a screen or the library.
std::optional<TServidorX> Conectar() {
    if (!X().Biblioteca) return std::nullopt;
    TServidorX servidor;
    servidor.Conexao.reset(X().Conectar(nullptr, nullptr));
    if (X().BuscarErro(servidor.Conexao.get()) != 0) return std::nullopt;
    const xcb_screen_iterator_t telas = X().BuscarTelas(X().BuscarConfiguracao(servidor.Conexao.get()));
    if (telas.rem == 0) return std::nullopt;
    servidor.Raiz = telas.data->root;
    return servidor;
}

bool PossuiExtensao(xcb_connection_t* AConexao, xcb_extension_t& AExtensao) {
    const xcb_query_extension_reply_t* dados = X().BuscarExtensao(AConexao, &AExtensao);
    return dados && dados->present != 0;
}

/// Sends a request of an extension; the number by which its answer is waited for.
template <typename TPedido>
unsigned Enviar(xcb_connection_t* AConexao, xcb_extension_t& AExtensao, std::uint8_t AOperacao, bool ASemResposta,
                TPedido& APedido) {
    static_assert(sizeof APedido % 4 == 0);  // otherwise the request would need padding
    const xcb_protocol_request_t descricao{1, &AExtensao, AOperacao, ASemResposta};
    // libxcb writes in the two places before the first part.
    std::array<iovec, 3> partes{};
    partes[2] = {&APedido, sizeof APedido};
    return X().Enviar(AConexao, 0, &partes[2], &descricao);
}

// libxcb numbers the extensions in these objects.
xcb_extension_t GTeste{"XTEST", 0};
xcb_extension_t GProtetorDeTela{"MIT-SCREEN-SAVER", 0};

}  // namespace

std::optional<TTeclado> PerguntarAoServidorX() {
    const auto servidor = Conectar();
    if (!servidor) return std::nullopt;
    xcb_connection_t* conexao = servidor->Conexao.get();
    const xcb_setup_t* configuracao = X().BuscarConfiguracao(conexao);
    const auto quantidade = static_cast<std::uint8_t>(configuracao->max_keycode - configuracao->min_keycode + 1);
    // All questions go out before the first answer is waited for.
    const auto pedidoPonteiro = X().PedirPonteiro(conexao, servidor->Raiz);
    const auto pedidoMapa = X().PedirMapa(conexao, configuracao->min_keycode, quantidade);
    const auto pedidoTeclas = X().PedirTeclas(conexao);
    const TRespostaX<xcb_query_pointer_reply_t> ponteiro(X().LerPonteiro(conexao, pedidoPonteiro, nullptr));
    const TRespostaX<xcb_get_keyboard_mapping_reply_t> mapa(X().LerMapa(conexao, pedidoMapa, nullptr));
    const TRespostaX<xcb_query_keymap_reply_t> teclas(X().LerTeclas(conexao, pedidoTeclas, nullptr));
    if (!ponteiro || !mapa || !teclas || mapa->keysyms_per_keycode == 0) return std::nullopt;
    const std::span keysyms(X().BuscarKeysyms(mapa.get()), static_cast<std::size_t>(X().ContarKeysyms(mapa.get())));
    TTeclado teclado{
        configuracao->min_keycode, mapa->keysyms_per_keycode, {keysyms.begin(), keysyms.end()}, ponteiro->mask};
    for (std::size_t codigo = 0; codigo < teclado.Abaixadas.size(); ++codigo)
        teclado.Abaixadas[codigo] = teclas->keys[codigo / 8] >> codigo % 8 & 1;
    return teclado;
}

void FingirToques(std::span<const TToque> AToques) {
    const auto servidor = Conectar();
    if (!servidor || !PossuiExtensao(servidor->Conexao.get(), GTeste)) return;
    xcb_connection_t* conexao = servidor->Conexao.get();
    for (const TToque& toque : AToques) {
        xcb_test_fake_input_request_t pedido{};  // at once, in no window, without movement
        pedido.type = toque.Soltar ? XCB_KEY_RELEASE : XCB_KEY_PRESS;
        pedido.detail = toque.Codigo;
        Enviar(conexao, GTeste, XCB_TEST_FAKE_INPUT, true, pedido);
    }
    // The answer to one more question tells that the server has handled all keys.
    std::free(X().LerPonteiro(conexao, X().PedirPonteiro(conexao, servidor->Raiz), nullptr));
}

std::optional<std::uint32_t> PerguntarInatividade() {
    const auto servidor = Conectar();
    if (!servidor || !PossuiExtensao(servidor->Conexao.get(), GProtetorDeTela)) return std::nullopt;
    xcb_screensaver_query_info_request_t pedido{};
    pedido.drawable = servidor->Raiz;
    const unsigned numero = Enviar(servidor->Conexao.get(), GProtetorDeTela, XCB_SCREENSAVER_QUERY_INFO, false, pedido);
    const TRespostaX<void> resposta(X().EsperarResposta(servidor->Conexao.get(), numero, nullptr));
    if (!resposta) return std::nullopt;
    return static_cast<const xcb_screensaver_query_info_reply_t*>(resposta.get())->ms_since_user_input;
}

}  // namespace OryUtils::Interno
