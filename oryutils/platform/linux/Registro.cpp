#include "oryutils/platform/Registro.hpp"

#include "oryutils/platform/linux/ArmazemRegistro.hpp"
#include "oryutils/readers/NomesRegistro.hpp"

#include <algorithm>
#include <array>

namespace OryUtils::Interno {
namespace {

// Rights of an access mask.
constexpr std::uint32_t CLerValores = 0x1;
constexpr std::uint32_t CGravarValores = 0x2;
constexpr std::uint32_t CCriarSubchaves = 0x4;
constexpr std::uint32_t CListarSubchaves = 0x8;
constexpr std::uint32_t CExcluir = 0x10000;
constexpr std::uint32_t CDireitosDeGravacao = CGravarValores | CCriarSubchaves | CExcluir;

struct TTextoDoErro {
    TErroRegistro Erro;
    std::u16string_view Texto;
};
constexpr std::array CTextosDosErros{
    TTextoDoErro{erNenhum, u"A operação foi concluída com êxito"},
    TTextoDoErro{erNaoExiste, u"A chave ou o valor não existe"},
    TTextoDoErro{erAcessoNegado, u"Acesso negado"},
    TTextoDoErro{erAlcaInvalida, u"A chave não está aberta"},
    TTextoDoErro{erFalhaDeGravacao, u"O arquivo de ajustes não pôde ser gravado"},
    TTextoDoErro{erNomeInvalido, u"O nome da chave ou do valor é inválido"},
    TTextoDoErro{erDiscoCheio, u"Não há espaço suficiente no disco"},
    TTextoDoErro{erArquivoGrande, u"O arquivo de ajustes é grande demais"},
    TTextoDoErro{erCorrompido, u"O arquivo de ajustes não está no formato de registro exportado"},
    TTextoDoErro{erFalhaDeLeitura, u"O arquivo de ajustes não pôde ser lido"},
    TTextoDoErro{erChaveExcluida, u"A chave foi excluída"},
};

// The roots as keys of the files.
struct TApelidoDeRaiz {
    TChaveRaiz Raiz;
    std::u16string_view Chave;
};
constexpr std::array CApelidos{
    TApelidoDeRaiz{crLocalMachine, u"HKEY_LOCAL_MACHINE"},
    TApelidoDeRaiz{crClassesRoot, u"HKEY_LOCAL_MACHINE\\Software\\Classes"},
    TApelidoDeRaiz{crCurrentConfig, u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Hardware Profiles\\Current"},
    TApelidoDeRaiz{crCurrentUser, u"HKEY_CURRENT_USER"},
    TApelidoDeRaiz{crUsers, u"HKEY_USERS"},
};

TErroRegistro ListarNomes(const auto& AMapa, std::vector<std::u16string>& ANomes) {
    ANomes.clear();
    for (const auto& [nome, conteudo] : AMapa) ANomes.push_back(nome);
    return erNenhum;
}

}  // namespace

struct TChaveRegistro::TDados {
    TLocalDoArmazem Local;
    std::u16string Chave;  // full path in the store's file
    std::uint32_t Acesso;

    bool Permite(std::uint32_t ADireitos) const { return (Acesso & ADireitos) == ADireitos; }

    /// Calls AAcao with the key as the store has it now, when the mask has ADireitos.
    template <typename TAcao>
    TErroRegistro Consultar(std::uint32_t ADireitos, TAcao AAcao) const {
        if (!Permite(ADireitos)) return erAcessoNegado;
        TArquivoReg arquivo;
        if (const TErroRegistro erro = LerArmazem(Local, arquivo); erro != erNenhum) return erro;
        const TChaveReg* chave = arquivo.Topo.Buscar(Chave);
        return chave ? AAcao(*chave) : erChaveExcluida;
    }
    /// The same, and writes the store.
    template <typename TAcao>
    TErroRegistro Alterar(std::uint32_t ADireitos, TAcao AAcao) const {
        if (!Permite(ADireitos)) return erAcessoNegado;
        return AlterarArmazem(Local, [&](TChaveReg& ATopo) {
            TChaveReg* chave = ATopo.Buscar(Chave);
            return chave ? AAcao(*chave) : erChaveExcluida;
        });
    }
};

TChaveRegistro::TChaveRegistro() = default;
TChaveRegistro::~TChaveRegistro() = default;
TChaveRegistro::TChaveRegistro(TChaveRegistro&& AOutra) noexcept = default;
TChaveRegistro& TChaveRegistro::operator=(TChaveRegistro&& AOutra) noexcept = default;

TErroRegistro TChaveRegistro::Abrir(TChaveRaiz ARaiz, std::u16string_view ACaminho, std::uint32_t AAcesso,
                                    bool ACriar) {
    const auto* apelido = std::find_if(CApelidos.begin(), CApelidos.end(),
                                       [&](const TApelidoDeRaiz& AItem) { return AItem.Raiz == ARaiz; });
    if (apelido == CApelidos.end()) return erAlcaInvalida;
    const std::u16string caminho = NormalizarCaminho(ACaminho);
    std::u16string chave(apelido->Chave);
    if (!caminho.empty()) chave.append(u"\\").append(caminho);
    if (!EhCaminhoValido(chave)) return erNomeInvalido;
    const auto local = BuscarLocalDoArmazem(ARaiz);

    TArquivoReg arquivo;
    if (const TErroRegistro erro = LerArmazem(local, arquivo); erro != erNenhum) return erro;
    const bool existe = arquivo.Topo.Buscar(chave) != nullptr;
    if (!existe && !ACriar) return erNaoExiste;
    if ((AAcesso & CDireitosDeGravacao) != 0 && !PodeGravarNoArmazem(local)) return erAcessoNegado;
    if (!existe) {
        const TErroRegistro erro = AlterarArmazem(local, [&](TChaveReg& ATopo) {
            ATopo.Criar(chave);
            return erNenhum;
        });
        if (erro != erNenhum) return erro;
    }
    FDados = std::make_unique<TDados>(TDados{local, chave, AAcesso});
    return erNenhum;
}

void TChaveRegistro::Fechar() noexcept { FDados.reset(); }
bool TChaveRegistro::EstahAberta() const noexcept { return FDados != nullptr; }

TErroRegistro TChaveRegistro::Ler(std::u16string_view AValor, TDadoRegistro& ADado) const {
    if (!FDados) return erAlcaInvalida;
    return FDados->Consultar(CLerValores, [&](const TChaveReg& AChave) {
        const auto valor = AChave.Valores.find(AValor);
        if (valor == AChave.Valores.end()) return erNaoExiste;
        ADado = valor->second;
        return erNenhum;
    });
}

TErroRegistro TChaveRegistro::Gravar(std::u16string_view AValor, const TDadoRegistro& ADado) {
    if (!FDados) return erAlcaInvalida;
    if (!EhNomeDeValorValido(AValor)) return erNomeInvalido;
    return FDados->Alterar(CGravarValores, [&](TChaveReg& AChave) {
        AChave.Valores[std::u16string(AValor)] = ADado;
        return erNenhum;
    });
}

TErroRegistro TChaveRegistro::ExcluirValor(std::u16string_view AValor) {
    if (!FDados) return erAlcaInvalida;
    return FDados->Alterar(CGravarValores, [&](TChaveReg& AChave) {
        return AChave.Valores.erase(std::u16string(AValor)) > 0 ? erNenhum : erNaoExiste;
    });
}

TErroRegistro TChaveRegistro::ExcluirSubchave(std::u16string_view ASubchave) {
    if (!FDados) return erAlcaInvalida;
    if (!EhNomeDeSubchaveValido(ASubchave)) return erNomeInvalido;
    return FDados->Alterar(CExcluir,
                           [&](TChaveReg& AChave) { return AChave.Excluir(ASubchave) ? erNenhum : erNaoExiste; });
}

TErroRegistro TChaveRegistro::ListarSubchaves(std::vector<std::u16string>& ANomes) const {
    if (!FDados) return erAlcaInvalida;
    return FDados->Consultar(CListarSubchaves,
                             [&](const TChaveReg& AChave) { return ListarNomes(AChave.Subchaves, ANomes); });
}

TErroRegistro TChaveRegistro::ListarValores(std::vector<std::u16string>& ANomes) const {
    if (!FDados) return erAlcaInvalida;
    return FDados->Consultar(CLerValores, [&](const TChaveReg& AChave) { return ListarNomes(AChave.Valores, ANomes); });
}

std::u16string BuscarTextoDoErroRegistro(TErroRegistro AErro) {
    for (const TTextoDoErro& texto : CTextosDosErros)
        if (texto.Erro == AErro) return std::u16string(texto.Texto);
    return u"Erro desconhecido";
}

}  // namespace OryUtils::Interno
