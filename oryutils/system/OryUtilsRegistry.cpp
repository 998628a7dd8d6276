#include "oryutils/system/OryUtilsRegistry.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/runtime/interno/ValorDeMoeda.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/ChavesDoRegistro.hpp"
#include "oryutils/system/interno/CotaObjetosGDI.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include <set>
#include <utility>
#include <variant>

namespace OryUtils {
namespace {

using namespace Interno;

constexpr std::u16string_view CSeparadorDaLista = u";";

// Closes the key of an operation however it ends.
class TFechamento {
public:
    explicit TFechamento(TRegistry& ARegistro) : FRegistro(ARegistro) {}
    ~TFechamento() { FRegistro.CloseKey(); }
    TFechamento(const TFechamento&) = delete;
    TFechamento& operator=(const TFechamento&) = delete;

private:
    TRegistry& FRegistro;
};

TResultStatus Falha(std::u16string AMensagem) { return {.Status = false, .Mensagem = std::move(AMensagem)}; }

// The way in which each kind is written; the others are not.
struct TGravacao {
    TRegistry& Registro;
    std::u16string_view Valor;

    void operator()(std::int64_t AConteudo) const {
        Registro.WriteInteger(Valor, static_cast<std::int32_t>(static_cast<std::uint32_t>(AConteudo)));
    }
    void operator()(Extended AConteudo) const { Registro.WriteFloat(Valor, static_cast<double>(AConteudo)); }
    void operator()(TMoeda AConteudo) const { (*this)(BuscarValorDaMoeda(AConteudo)); }
    void operator()(TDateTime AConteudo) const { (*this)(Extended{static_cast<double>(AConteudo)}); }
    void operator()(const std::u16string& AConteudo) const { Registro.WriteString(Valor, AConteudo); }
    void operator()(const auto&) const {}
};

TResultStatus FalhaAoAdicionar(std::u16string_view AChave, std::u16string_view AConteudo) {
    return Falha(PreencherModelo(CErroAoAdicionar, {AChave, AConteudo, BuscarMensagemDaExcecaoAtual()}));
}

}  // namespace

TInstanciaGlobal<TOryUtilsRegistro> GOryUtilsRegistro;

void TOryUtilsRegistro::Inicializar(TChaveRaiz ARaiz, std::u16string_view AChave) {
    // A key left open by GetChave would be where the path starts.
    FRegistro.CloseKey();
    FRegistro.SetRootKey(ARaiz);
    FRegistro.OpenKey(AChave, false);
}

TRegistry& TOryUtilsRegistro::GetChave(TChaveRaiz ARaiz, std::u16string_view AChave) {
    Inicializar(ARaiz, AChave);
    return FRegistro;
}

std::u16string TOryUtilsRegistro::GetValorRegistro(TChaveRaiz ARaiz, std::u16string_view AChave,
                                                   std::u16string_view AValor) {
    const TFechamento fechamento(FRegistro);
    Inicializar(ARaiz, AChave);
    return FRegistro.ReadString(AValor);
}

// While no key is open the accessor would look for the subkey below the root.
bool TOryUtilsRegistro::ExisteChave(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view ASubchave) {
    const TFechamento fechamento(FRegistro);
    Inicializar(ARaiz, AChave);
    return FRegistro.EstahAberta() && FRegistro.KeyExists(ASubchave);
}

bool TOryUtilsRegistro::ExisteValor(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view AValor) {
    const TFechamento fechamento(FRegistro);
    Inicializar(ARaiz, AChave);
    return FRegistro.ValueExists(AValor);
}

void TOryUtilsRegistro::CriarChave(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view ASubchave) {
    const TFechamento fechamento(FRegistro);
    Inicializar(ARaiz, AChave);
    if (!FRegistro.EstahAberta()) return;
    try {
        FRegistro.CreateKey(ASubchave);
    } catch (const ERegistryException&) {
        // The caller asks ExisteChave.
    }
}

TResultStatus TOryUtilsRegistro::AdicionouValor(TChaveRaiz ARaiz, std::u16string_view AChave,
                                                const TValorRegistro& AConteudo, std::u16string_view AValor) {
    const TFechamento fechamento(FRegistro);
    try {
        Inicializar(ARaiz, AChave);
        std::visit(TGravacao{FRegistro, AValor}, AConteudo.GetValor().GetValor());
        return {};
    } catch (...) {
        return FalhaAoAdicionar(AChave, VarianteParaTexto(AConteudo.GetValor()));
    }
}

void TOryUtilsRegistro::AdicionarValor(TChaveRaiz ARaiz, std::u16string_view AChave, const TValorRegistro& AConteudo,
                                       std::u16string_view AValor) {
    AdicionouValor(ARaiz, AChave, AConteudo, AValor);
}

TResultStatus TOryUtilsRegistro::ExcluiuValor(TChaveRaiz ARaiz, std::u16string_view AChave,
                                              std::u16string_view AValor) {
    const TFechamento fechamento(FRegistro);
    Inicializar(ARaiz, AChave);
    if (FRegistro.DeleteValue(AValor)) return {};
    return Falha(PreencherModelo(CErroAoExcluirValor, {AChave, AValor}));
}

void TOryUtilsRegistro::ExcluirValor(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view AValor) {
    ExcluiuValor(ARaiz, AChave, AValor);
}

void TOryUtilsRegistro::ExcluirRegistro(TChaveRaiz ARaiz, std::u16string_view AChave, std::u16string_view AValor) {
    ExcluirValor(ARaiz, AChave, AValor);
}

TResultStatus TOryUtilsRegistro::ExcluiuChave(TChaveRaiz ARaiz, std::u16string_view AChave,
                                              std::u16string_view ASubchave) {
    const TFechamento fechamento(FRegistro);
    Inicializar(ARaiz, AChave);
    if (FRegistro.EstahAberta() && FRegistro.DeleteKey(ASubchave)) return {};
    const std::u16string motivo = Interno::BuscarTextoDoErroRegistro(FRegistro.GetUltimoErro());
    return Falha(PreencherModelo(CErroAoExcluirChave, {ASubchave, motivo}));
}

TResultStatus TOryUtilsRegistro::AdicionouProgramaInicializacaoWindows(std::u16string_view ANome,
                                                                       std::u16string_view AComando) {
    const TFechamento fechamento(FRegistro);
    try {
        Inicializar(crLocalMachine, CChaveAutoInicio);
        FRegistro.WriteString(ANome, AComando);
        return {};
    } catch (...) {
        return Falha(PreencherModelo(CErroAoConfigurarAutoInicio, {ANome, BuscarMensagemDaExcecaoAtual()}));
    }
}

TResultStatus TOryUtilsRegistro::ExcluiuProgramaInicializacaoWindows(std::u16string_view ANome) {
    TResultStatus resultado = ExcluiuValor(crLocalMachine, CChaveAutoInicio, ANome);
    if (resultado.Status) return resultado;
    return Falha(PreencherModelo(CErroAoExcluirAutoInicio, {resultado.Mensagem}));
}

std::u16string TOryUtilsRegistro::BuscarValorVariavelAmbiente(std::u16string_view AVariavel) {
    return GetValorRegistro(crLocalMachine, CChaveAmbiente, AVariavel);
}

TResultStatus TOryUtilsRegistro::AdicionouValorVariavelAmbiente(std::u16string_view AVariavel,
                                                                const std::vector<std::u16string>& AItens) {
    try {
        std::u16string lista = BuscarValorVariavelAmbiente(AVariavel);
        for (const std::u16string& item : AItens)
            if (!Aparar(item).empty()) lista.append(CSeparadorDaLista).append(item);
        return AdicionouValor(crLocalMachine, CChaveAmbiente, lista, AVariavel);
    } catch (...) {
        return FalhaAoAdicionar(CChaveAmbiente, ConverterStringListParaTextoComDelimitador(&AItens, CSeparadorDaLista));
    }
}

TResultStatus TOryUtilsRegistro::ExcluiuValorVariavelAmbiente(std::u16string_view AVariavel,
                                                              const std::vector<std::u16string>& AItens) {
    try {
        auto lista =
            ConverterTextoComDelimitadorParaStringList(BuscarValorVariavelAmbiente(AVariavel), CSeparadorDaLista);
        if (lista) {
            std::set<std::u16string> retirar;
            for (const std::u16string& item : AItens) retirar.insert(MinusculaDe(Aparar(item)));
            std::erase_if(*lista, [&](const std::u16string& AEntrada) {
                return retirar.contains(MinusculaDe(Aparar(AEntrada)));
            });
        }
        // Joining raises when the text could not be split.
        const auto texto = ConverterStringListParaTextoComDelimitador(lista ? &*lista : nullptr, CSeparadorDaLista);
        return AdicionouValor(crLocalMachine, CChaveAmbiente, texto, AVariavel);
    } catch (...) {
        return FalhaAoAdicionar(CChaveAmbiente, ConverterStringListParaTextoComDelimitador(&AItens, CSeparadorDaLista));
    }
}

TResultStatus TOryUtilsRegistro::ValidouValorLimiteCotaObjetosGDI(int AValor) {
    return ValidarCotaObjetosGDI(AValor, TOryUtilsSistema::BuscarVersaoWindows());
}

TResultStatus TOryUtilsRegistro::AlterouCotaLimiteObjetosGDI(int AValor) {
    const TResultStatus validacao = ValidouValorLimiteCotaObjetosGDI(AValor);
    return validacao.Status ? AdicionouValor(crLocalMachine, CChaveCotaGDI, AValor, CValorCotaGDI) : validacao;
}

std::u16string TOryUtilsRegistro::BuscarValorCotaLimiteObjetosGDI() {
    const TFechamento fechamento(FRegistro);
    Inicializar(crLocalMachine, CChaveCotaGDI);
    return InteiroParaTexto(FRegistro.ReadInteger(CValorCotaGDI));
}

TResultStatus TOryUtilsRegistro::AtualizouTimeoutInicializacaoServico(int AMilissegundos) {
    AdicionarValor(crLocalMachine, CChaveTimeoutServicos, AMilissegundos, CValorTimeoutServicos);
    if (ExisteValor(crLocalMachine, CChaveTimeoutServicos, CValorTimeoutServicos)) return {};
    return Falha(std::u16string(CErroAoAtualizarTimeout));
}

}  // namespace OryUtils
