#include "oryutils/runtime/Registro.hpp"

#include "oryutils/characters/Unidades.hpp"
#include "oryutils/readers/NomesRegistro.hpp"

#include <bit>
#include <utility>

namespace OryUtils {
namespace {

using Interno::TDadoRegistro;
using Interno::TErroRegistro;

[[noreturn]] void RecusarTipo(std::u16string_view AValor) {
    throw ERegistryException(u"Tipo de dado inválido para '" + std::u16string(AValor) + u"'");
}

// Little-endian bytes of an integer, and back.
template <typename T>
std::string BytesDe(T AValor) {
    std::string bytes;
    for (std::size_t i = 0; i < sizeof(T); ++i) bytes += static_cast<char>(AValor >> (8 * i) & 0xFF);
    return bytes;
}
template <typename T>
T DeBytes(std::string_view ABytes) {
    T valor = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) valor |= T{static_cast<unsigned char>(ABytes[i])} << (8 * i);
    return valor;
}

}  // namespace

bool TRegistry::Deu(TErroRegistro AErro) const noexcept {
    if (AErro == Interno::erNenhum) return true;
    FUltimoErro = AErro;
    const bool naoAbriu = AErro == Interno::erAlcaInvalida && FErroAoAbrir != Interno::erNenhum;
    FMotivo = naoAbriu ? FErroAoAbrir : AErro;
    return false;
}

std::u16string TRegistry::BuscarMotivoDaFalha() const { return Interno::BuscarTextoDoErroRegistro(FMotivo); }

void TRegistry::Falhar(std::u16string_view AAntes, std::u16string_view ANome, std::u16string_view ADepois) const {
    std::u16string mensagem = std::u16string(AAntes).append(ANome).append(ADepois);
    if (const std::u16string motivo = BuscarMotivoDaFalha(); !motivo.empty()) mensagem += u": " + motivo;
    throw ERegistryException(mensagem);
}

// Below the root key.
std::u16string TRegistry::BuscarCaminhoCompleto(std::u16string_view AChave) const {
    if (AChave.starts_with(u'\\') || !EstahAberta()) return Interno::NormalizarCaminho(AChave);
    return Interno::NormalizarCaminho(std::u16string(FCaminho).append(u"\\").append(AChave));
}

void TRegistry::SetRootKey(TChaveRaiz ARaiz) {
    if (ARaiz != FRaiz) CloseKey();
    FRaiz = ARaiz;
}

bool TRegistry::OpenKey(std::u16string_view AChave, bool ACriar) {
    std::u16string caminho = BuscarCaminhoCompleto(AChave);
    const TErroRegistro erro = FChave.Abrir(FRaiz, caminho, FAcesso, ACriar);
    FErroAoAbrir = EstahAberta() ? Interno::erNenhum : erro;
    if (!Deu(erro)) return false;
    FCaminho = std::move(caminho);
    return true;
}

void TRegistry::CloseKey() noexcept {
    FChave.Fechar();
    FCaminho.clear();
    FErroAoAbrir = Interno::erNenhum;
}

void TRegistry::CreateKey(std::u16string_view AChave) {
    Interno::TChaveRegistro nova;
    if (!Deu(nova.Abrir(FRaiz, BuscarCaminhoCompleto(AChave), FAcesso, true)))
        Falhar(u"Falha ao criar a chave ", AChave, {});
}

bool TRegistry::KeyExists(std::u16string_view AChave) const {
    Interno::TChaveRegistro chave;
    return Deu(chave.Abrir(FRaiz, BuscarCaminhoCompleto(AChave), arLeitura, false));
}

bool TRegistry::DeleteKey(std::u16string_view AChave) {
    if (Interno::NormalizarCaminho(AChave).empty()) return Deu(Interno::erNomeInvalido);
    // The key above is opened by itself, so that its view of the registry holds for what is deleted.
    const std::u16string caminho = BuscarCaminhoCompleto(AChave);
    const std::size_t barra = caminho.rfind(u'\\');
    const bool abaixoDaRaiz = barra == caminho.npos;
    Interno::TChaveRegistro acima;
    return Deu(acima.Abrir(FRaiz, abaixoDaRaiz ? std::u16string() : caminho.substr(0, barra), FAcesso, false)) &&
           Deu(acima.ExcluirSubchave(abaixoDaRaiz ? caminho : caminho.substr(barra + 1)));
}

bool TRegistry::LerDado(std::u16string_view AValor, TDadoRegistro& ADado) const {
    return Deu(FChave.Ler(AValor, ADado));
}

bool TRegistry::ValueExists(std::u16string_view AValor) const {
    TDadoRegistro dado;
    return LerDado(AValor, dado);
}

bool TRegistry::DeleteValue(std::u16string_view AValor) { return Deu(FChave.ExcluirValor(AValor)); }

std::vector<std::u16string> TRegistry::GetKeyNames() const {
    std::vector<std::u16string> nomes;
    Deu(FChave.ListarSubchaves(nomes));
    return nomes;
}

std::vector<std::u16string> TRegistry::GetValueNames() const {
    std::vector<std::u16string> nomes;
    Deu(FChave.ListarValores(nomes));
    return nomes;
}

std::u16string TRegistry::ReadString(std::u16string_view AValor) const {
    TDadoRegistro dado;
    if (!LerDado(AValor, dado)) return {};
    if (dado.Tipo != Interno::tdrTexto && dado.Tipo != Interno::tdrTextoExpansivel) RecusarTipo(AValor);
    std::u16string texto = Interno::UnidadesDeBytes(dado.Bytes);
    if (const std::size_t fim = texto.find(u'\0'); fim != texto.npos) texto.resize(fim);
    return texto;
}

std::int32_t TRegistry::ReadInteger(std::u16string_view AValor) const {
    TDadoRegistro dado;
    if (!LerDado(AValor, dado)) Falhar(u"Falha ao obter dados de '", AValor, u"'");
    if (dado.Tipo != Interno::tdrInteiro || dado.Bytes.size() != sizeof(std::int32_t)) RecusarTipo(AValor);
    return static_cast<std::int32_t>(DeBytes<std::uint32_t>(dado.Bytes));
}

double TRegistry::ReadFloat(std::u16string_view AValor) const {
    TDadoRegistro dado;
    if (!LerDado(AValor, dado)) Falhar(u"Falha ao obter dados de '", AValor, u"'");
    if (dado.Tipo != Interno::tdrBinario || dado.Bytes.size() != sizeof(double)) RecusarTipo(AValor);
    return std::bit_cast<double>(DeBytes<std::uint64_t>(dado.Bytes));
}

void TRegistry::Gravar(std::u16string_view AValor, const TDadoRegistro& ADado) {
    if (!Deu(FChave.Gravar(AValor, ADado))) Falhar(u"Falha ao definir dados para '", AValor, u"'");
}

void TRegistry::WriteString(std::u16string_view AValor, std::u16string_view ATexto) {
    Gravar(AValor, {Interno::tdrTexto, Interno::BytesDeUnidades(std::u16string(ATexto) + u'\0')});
}

void TRegistry::WriteInteger(std::u16string_view AValor, std::int32_t AInteiro) {
    Gravar(AValor, {Interno::tdrInteiro, BytesDe(static_cast<std::uint32_t>(AInteiro))});
}

void TRegistry::WriteFloat(std::u16string_view AValor, double ANumero) {
    Gravar(AValor, {Interno::tdrBinario, BytesDe(std::bit_cast<std::uint64_t>(ANumero))});
}

}  // namespace OryUtils
