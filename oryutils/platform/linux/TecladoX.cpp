#include "oryutils/platform/linux/TecladoX.hpp"

#include "oryutils/platform/BibliotecaDinamica.hpp"

#include <array>
#include <cstdlib>
#include <memory>
#include <span>
#include <sys/uio.h>

// The X server is asked through libxcb: unlike libX11 it never ends the program when the server goes away. The library
// is loaded at run time, since most servers and batch machines have none; what is used of its interface stands here.
namespace OryUtils::Interno {
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
struct TRespostaTeclas {
    std::array<std::uint8_t, 8> Inicio;
    std::array<std::uint8_t, 32> Teclas;  // a bit for each code
};
static_assert(sizeof(TConfiguracao) == 40 && sizeof(TRespostaPonteiro) == 28 && sizeof(TRespostaMapa) == 32 &&
              sizeof(TRespostaTeclas) == 40);

// Requests of extensions are written here; libxcb only numbers and carries them.
struct TExtensao {
    const char* Nome;
    int Numero;  // given by libxcb
};
struct TDadosDaExtensao {
    std::array<std::uint8_t, 8> Inicio;
    std::uint8_t Presente;
};
struct TDescricaoDoPedido {
    std::size_t Partes;
    TExtensao* Extensao;
    std::uint8_t Operacao;
    std::uint8_t SemResposta;
};
constexpr std::uint8_t CFingirEntrada = 2;  // of XTEST
struct TPedidoFingirEntrada {
    std::array<std::uint8_t, 4> Inicio{};
    std::uint8_t Tipo = 0;  // of the event
    std::uint8_t Codigo = 0;
    std::array<std::uint8_t, 30> Fim{};  // at once, in no window, without movement
};
constexpr std::uint8_t CTeclaAbaixada = 2;
constexpr std::uint8_t CTeclaSolta = 3;
constexpr std::uint8_t CConsultarInformacao = 1;  // of MIT-SCREEN-SAVER
struct TPedidoInformacao {
    std::array<std::uint8_t, 4> Inicio{};
    std::uint32_t Janela = 0;
};
struct TRespostaInformacao {
    std::array<std::uint8_t, 16> Inicio;
    std::uint32_t MilissegundosSemEntrada;
    std::array<std::uint8_t, 12> Fim;
};
static_assert(sizeof(TPedidoFingirEntrada) == 36 && sizeof(TPedidoInformacao) == 8 &&
              sizeof(TRespostaInformacao) == 32);

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
    TPedido (*PedirTeclas)(TConexao*) = nullptr;
    TRespostaTeclas* (*LerTeclas)(TConexao*, TPedido, void**) = nullptr;
    const TDadosDaExtensao* (*BuscarExtensao)(TConexao*, TExtensao*) = nullptr;
    unsigned (*Enviar)(TConexao*, int, iovec*, const TDescricaoDoPedido*) = nullptr;
    void* (*EsperarResposta)(TConexao*, unsigned, void**) = nullptr;
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
                  Ligar(biblioteca, "xcb_get_keyboard_mapping_keysyms_length", x.ContarKeysyms) &&
                  Ligar(biblioteca, "xcb_query_keymap", x.PedirTeclas) &&
                  Ligar(biblioteca, "xcb_query_keymap_reply", x.LerTeclas) &&
                  Ligar(biblioteca, "xcb_get_extension_data", x.BuscarExtensao) &&
                  Ligar(biblioteca, "xcb_send_request", x.Enviar) &&
                  Ligar(biblioteca, "xcb_wait_for_reply", x.EsperarResposta);
    if (x.Carregada) biblioteca.Soltar();  // its functions are kept
    return x;
}

struct TLiberar {
    void operator()(void* AResposta) const { std::free(AResposta); }
};

const TBibliotecaX& BibliotecaX() {
    static const TBibliotecaX biblioteca = CarregarBiblioteca();
    return biblioteca;
}

using TConexaoAberta = std::unique_ptr<TConexao, void (*)(TConexao*)>;
/// A connection to the server that DISPLAY names; null when there is none.
TConexaoAberta Conectar() {
    const TBibliotecaX& x = BibliotecaX();
    if (!x.Carregada) return {nullptr, nullptr};
    TConexaoAberta conexao(x.Conectar(nullptr, nullptr), x.Desconectar);
    if (x.BuscarErro(conexao.get()) != 0) conexao.reset();
    return conexao;
}

std::optional<std::uint32_t> BuscarJanelaRaiz(TConexao* AConexao) {
    const TIteradorTelas telas = BibliotecaX().BuscarTelas(BibliotecaX().BuscarConfiguracao(AConexao));
    if (telas.Restantes == 0) return std::nullopt;
    return telas.Dados->Raiz;
}

bool PossuiExtensao(TConexao* AConexao, TExtensao& AExtensao) {
    const TDadosDaExtensao* dados = BibliotecaX().BuscarExtensao(AConexao, &AExtensao);
    return dados && dados->Presente != 0;
}

template <typename TPedidoDaExtensao>
unsigned Enviar(TConexao* AConexao, TExtensao& AExtensao, std::uint8_t AOperacao, bool ASemResposta,
                TPedidoDaExtensao& APedido) {
    static_assert(sizeof APedido % 4 == 0);  // otherwise it would need padding behind it
    const TDescricaoDoPedido descricao{1, &AExtensao, AOperacao, ASemResposta};
    // libxcb writes in the two places before the first part.
    std::array<iovec, 3> partes{};
    partes[2] = {&APedido, sizeof APedido};
    return BibliotecaX().Enviar(AConexao, 0, &partes[2], &descricao);
}

TExtensao GTeste{"XTEST", 0};
TExtensao GProtetorDeTela{"MIT-SCREEN-SAVER", 0};

}  // namespace

std::optional<TTeclado> PerguntarAoServidorX() {
    const TConexaoAberta conexao = Conectar();
    if (!conexao) return std::nullopt;
    const TBibliotecaX& x = BibliotecaX();
    const auto raiz = BuscarJanelaRaiz(conexao.get());
    if (!raiz) return std::nullopt;
    const TConfiguracao* configuracao = x.BuscarConfiguracao(conexao.get());
    const auto quantidade = static_cast<std::uint8_t>(configuracao->MaiorTecla - configuracao->MenorTecla + 1);
    const TPedido pedidoPonteiro = x.PedirPonteiro(conexao.get(), *raiz);
    const TPedido pedidoMapa = x.PedirMapa(conexao.get(), configuracao->MenorTecla, quantidade);
    const TPedido pedidoTeclas = x.PedirTeclas(conexao.get());
    const std::unique_ptr<TRespostaPonteiro, TLiberar> ponteiro(x.LerPonteiro(conexao.get(), pedidoPonteiro, nullptr));
    const std::unique_ptr<TRespostaMapa, TLiberar> mapa(x.LerMapa(conexao.get(), pedidoMapa, nullptr));
    const std::unique_ptr<TRespostaTeclas, TLiberar> teclas(x.LerTeclas(conexao.get(), pedidoTeclas, nullptr));
    if (!ponteiro || !mapa || !teclas || mapa->PorTecla == 0) return std::nullopt;
    const std::span keysyms(x.BuscarKeysyms(mapa.get()), static_cast<std::size_t>(x.ContarKeysyms(mapa.get())));
    TTeclado teclado{
        configuracao->MenorTecla, mapa->PorTecla, {keysyms.begin(), keysyms.end()}, ponteiro->Modificadores};
    for (std::size_t codigo = 0; codigo < teclado.Abaixadas.size(); ++codigo)
        teclado.Abaixadas[codigo] = teclas->Teclas[codigo / 8] >> codigo % 8 & 1;
    return teclado;
}

void FingirToques(std::span<const TToque> AToques) {
    const TConexaoAberta conexao = Conectar();
    if (!conexao || !PossuiExtensao(conexao.get(), GTeste)) return;
    const auto raiz = BuscarJanelaRaiz(conexao.get());
    if (!raiz) return;
    for (const TToque& toque : AToques) {
        TPedidoFingirEntrada pedido{.Tipo = toque.Soltar ? CTeclaSolta : CTeclaAbaixada, .Codigo = toque.Codigo};
        Enviar(conexao.get(), GTeste, CFingirEntrada, true, pedido);
    }
    // A question that must be answered: what was sent before it has been done then.
    const TPedido pergunta = BibliotecaX().PedirPonteiro(conexao.get(), *raiz);
    std::free(BibliotecaX().LerPonteiro(conexao.get(), pergunta, nullptr));
}

std::optional<std::uint32_t> PerguntarInatividade() {
    const TConexaoAberta conexao = Conectar();
    if (!conexao || !PossuiExtensao(conexao.get(), GProtetorDeTela)) return std::nullopt;
    const auto raiz = BuscarJanelaRaiz(conexao.get());
    if (!raiz) return std::nullopt;
    TPedidoInformacao pedido{.Janela = *raiz};
    const unsigned numero = Enviar(conexao.get(), GProtetorDeTela, CConsultarInformacao, false, pedido);
    const std::unique_ptr<void, TLiberar> resposta(BibliotecaX().EsperarResposta(conexao.get(), numero, nullptr));
    if (!resposta) return std::nullopt;
    return static_cast<const TRespostaInformacao*>(resposta.get())->MilissegundosSemEntrada;
}

}  // namespace OryUtils::Interno
