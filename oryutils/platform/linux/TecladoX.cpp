#include "oryutils/platform/linux/TecladoX.hpp"

#include "oryutils/platform/BibliotecaDinamica.hpp"

#include <array>
#include <cstdlib>
#include <memory>
#include <span>

// The X server is asked through libxcb: unlike libX11 it never ends the program when the server goes away. The library
// is loaded at run time, since most servers and batch machines have none; what is used of its interface stands here.
namespace OryUtils::Plataforma {
namespace {

struct TConexao;
struct TPedido {
    unsigned Sequencia;
};
struct TConfiguracao {
    std::array<std::uint8_t, 34> Inicio;
    std::uint8_t MenorTecla;
    std::uint8_t MaiorTecla;
    std::array<std::uint8_t, 4> Fim;
};
struct TTela {
    std::uint32_t Raiz;
};
struct TIteradorTelas {
    TTela* Dados;
    int Restantes;
    int Indice;
};
struct TRespostaPonteiro {
    std::array<std::uint8_t, 24> Inicio;
    std::uint16_t Modificadores;
    std::uint16_t Fim;
};
struct TRespostaMapa {
    std::uint8_t Tipo;
    std::uint8_t PorTecla;
    std::array<std::uint8_t, 30> Fim;
};
static_assert(sizeof(TConfiguracao) == 40 && sizeof(TRespostaPonteiro) == 28 && sizeof(TRespostaMapa) == 32);

struct TBibliotecaX {
    TConexao* (*Conectar)(const char*, int*) = nullptr;
    int (*BuscarErro)(TConexao*) = nullptr;
    void (*Desconectar)(TConexao*) = nullptr;
    const TConfiguracao* (*BuscarConfiguracao)(TConexao*) = nullptr;
    TIteradorTelas (*BuscarTelas)(const TConfiguracao*) = nullptr;
    TPedido (*PedirPonteiro)(TConexao*, std::uint32_t) = nullptr;
    TRespostaPonteiro* (*LerPonteiro)(TConexao*, TPedido, void**) = nullptr;
    TPedido (*PedirMapa)(TConexao*, std::uint8_t, std::uint8_t) = nullptr;
    TRespostaMapa* (*LerMapa)(TConexao*, TPedido, void**) = nullptr;
    TKeysym* (*BuscarKeysyms)(const TRespostaMapa*) = nullptr;
    int (*ContarKeysyms)(const TRespostaMapa*) = nullptr;
    bool Carregada = false;
};

template <typename TFuncao>
bool Ligar(const TBibliotecaDinamica& ABiblioteca, const char* ANome, TFuncao*& AFuncao) {
    AFuncao = ABiblioteca.Buscar<TFuncao>(ANome);
    return AFuncao != nullptr;
}

TBibliotecaX CarregarBiblioteca() {
    TBibliotecaX x;
    TBibliotecaDinamica biblioteca(u"libxcb.so.1");
    x.Carregada = biblioteca && Ligar(biblioteca, "xcb_connect", x.Conectar) &&
                  Ligar(biblioteca, "xcb_connection_has_error", x.BuscarErro) &&
                  Ligar(biblioteca, "xcb_disconnect", x.Desconectar) &&
                  Ligar(biblioteca, "xcb_get_setup", x.BuscarConfiguracao) &&
                  Ligar(biblioteca, "xcb_setup_roots_iterator", x.BuscarTelas) &&
                  Ligar(biblioteca, "xcb_query_pointer", x.PedirPonteiro) &&
                  Ligar(biblioteca, "xcb_query_pointer_reply", x.LerPonteiro) &&
                  Ligar(biblioteca, "xcb_get_keyboard_mapping", x.PedirMapa) &&
                  Ligar(biblioteca, "xcb_get_keyboard_mapping_reply", x.LerMapa) &&
                  Ligar(biblioteca, "xcb_get_keyboard_mapping_keysyms", x.BuscarKeysyms) &&
                  Ligar(biblioteca, "xcb_get_keyboard_mapping_keysyms_length", x.ContarKeysyms);
    if (x.Carregada) biblioteca.Soltar();  // its functions are kept
    return x;
}

struct TLiberar {
    void operator()(void* AResposta) const { std::free(AResposta); }
};

}  // namespace

std::optional<TTeclado> PerguntarAoServidorX() {
    static const TBibliotecaX x = CarregarBiblioteca();
    if (!x.Carregada) return std::nullopt;
    const std::unique_ptr<TConexao, void (*)(TConexao*)> conexao(x.Conectar(nullptr, nullptr), x.Desconectar);
    if (x.BuscarErro(conexao.get()) != 0) return std::nullopt;
    const TConfiguracao* configuracao = x.BuscarConfiguracao(conexao.get());
    const TIteradorTelas telas = x.BuscarTelas(configuracao);
    if (telas.Restantes == 0) return std::nullopt;
    const auto teclas = static_cast<std::uint8_t>(configuracao->MaiorTecla - configuracao->MenorTecla + 1);
    const TPedido pedidoPonteiro = x.PedirPonteiro(conexao.get(), telas.Dados->Raiz);
    const TPedido pedidoMapa = x.PedirMapa(conexao.get(), configuracao->MenorTecla, teclas);
    const std::unique_ptr<TRespostaPonteiro, TLiberar> ponteiro(x.LerPonteiro(conexao.get(), pedidoPonteiro, nullptr));
    const std::unique_ptr<TRespostaMapa, TLiberar> mapa(x.LerMapa(conexao.get(), pedidoMapa, nullptr));
    if (!ponteiro || !mapa || mapa->PorTecla == 0) return std::nullopt;
    const std::span keysyms(x.BuscarKeysyms(mapa.get()), static_cast<std::size_t>(x.ContarKeysyms(mapa.get())));
    return TTeclado{
        configuracao->MenorTecla, mapa->PorTecla, {keysyms.begin(), keysyms.end()}, ponteiro->Modificadores};
}

}  // namespace OryUtils::Plataforma
