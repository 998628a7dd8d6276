#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Hexadecimal.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/interno/DataDoArquivo.hpp"
#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/VersaoDeArquivo.hpp"
#include "oryutils/runtime/ArquivoIni.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <array>

namespace OryUtils {
namespace {

// In the order in which they are asked for. The last three are the house's own.
constexpr std::array<std::u16string_view, 13> CChaves{
    u"CompanyName",        u"FileDescription",  u"FileVersion",           u"InternalName",   u"LegalCopyright",
    u"LegalTrademarks",    u"OriginalFilename", u"ProductName",           u"ProductVersion", u"Comments",
    u"MinVersionDataBase", u"NaoLiberarPacote", u"VersaoMaximaConversao",
};

/// AValor in lower-case hexadecimal behind a "0", without padding: the name of a table of texts has been put together
/// of two such groups since the first version, so 0x1009 becomes "01009" and is not found.
std::u16string ParaHexadecimal(std::uint16_t AValor) { return u"0" + Interno::TextoHexadecimal(AValor); }

std::u16string LerVersaoIni(std::u16string_view AArquivo) { return LerArquivoIni(AArquivo, u"VERSAO", u"Numero"); }

std::u16string LerVersaoFixa(std::u16string_view AArquivo) {
    const auto versao = Interno::TVersaoDeArquivo(AArquivo).ConsultarFixa();
    if (!versao) return {};
    const auto [mais, menos] = *versao;
    std::u16string texto;
    for (const std::uint32_t parte : {mais >> 16, mais & 0xFFFF, menos >> 16, menos & 0xFFFF})
        texto.append(texto.empty() ? u"" : u".") += InteiroParaTexto(parte);
    return texto;
}

std::u16string LerVersao(std::u16string_view AArquivo) {
    const std::u16string extensao = MinusculaDe(ExtrairExtensaoDoArquivo(AArquivo));
    return extensao == u".ini" || extensao == u".html" ? LerVersaoIni(AArquivo) : LerVersaoFixa(AArquivo);
}

}  // namespace

void TArquivoInfo::SetArquivo(std::u16string_view AArquivo) {
    FArquivo = AArquivo;
    if (Aparar(AArquivo).empty()) {
        CosturaInterface().Alerta(
            u"Não foi possível obter as configurações do arquivo.\r\nA propriedade <<Arquivo>> está vazia.");
        Abort();
    }
    CarregaDados();
}

void TArquivoInfo::CarregaDados() {
    Clear();
    if (!Interno::ExisteArquivo(FArquivo)) return;
    const Interno::TVersaoDeArquivo versao(FArquivo);
    const auto traducao = versao.ConsultarTraducao();
    if (!traducao) return;
    const std::u16string tabela = ParaHexadecimal(traducao->Idioma) + ParaHexadecimal(traducao->PaginaDeCodigo);
    for (const std::u16string_view chave : CChaves)
        if (const auto texto = versao.ConsultarTexto(tabela, chave)) Adiciona(chave, *texto);
}

void TArquivoInfo::Adiciona(std::u16string_view AChave, std::u16string_view AValor) {
    FItems.push_back((std::u16string(AChave) += u'=').append(AValor));
}

std::u16string TArquivoInfo::Localiza(std::u16string_view AChave) const {
    const std::u16string chave = MinusculaDe(AChave);
    for (const std::u16string& item : FItems) {
        const std::size_t igual = item.find(u'=');
        if (igual != item.npos && MinusculaDe(std::u16string_view(item).substr(0, igual)) == chave)
            return item.substr(igual + 1);
    }
    return {};
}

std::u16string TArquivoInfo::GetNomeCompanhia() const { return Localiza(u"CompanyName"); }
std::u16string TArquivoInfo::GetDescricao() const { return Localiza(u"FileDescription"); }
std::u16string TArquivoInfo::GetNomeInterno() const { return Localiza(u"InternalName"); }
std::u16string TArquivoInfo::GetLegalCopyright() const { return Localiza(u"LegalCopyright"); }
std::u16string TArquivoInfo::GetLegalTrademarks() const { return Localiza(u"LegalTrademarks"); }
std::u16string TArquivoInfo::GetNomeOriginal() const { return Localiza(u"OriginalFilename"); }
std::u16string TArquivoInfo::GetNomeProduto() const { return Localiza(u"ProductName"); }
std::u16string TArquivoInfo::GetVersaoProduto() const { return Localiza(u"ProductVersion"); }
std::u16string TArquivoInfo::GetComentarios() const { return Localiza(u"Comments"); }
std::u16string TArquivoInfo::GetVersaoMinimaBanco() const { return Localiza(u"MinVersionDataBase"); }
std::u16string TArquivoInfo::GetVersaoMaximaConversao() const { return Localiza(u"VersaoMaximaConversao"); }
bool TArquivoInfo::GetNaoLiberarPacote() const { return Aparar(Localiza(u"NaoLiberarPacote")) == u"True"; }

std::u16string TArquivoInfo::GetVersao() const { return LerVersao(FArquivo); }
std::u16string TArquivoInfo::BuscarVersaoArquivo() const { return LerVersaoFixa(FArquivo); }
std::u16string TArquivoInfo::BuscarVersaoArquivoIni() const { return LerVersaoIni(FArquivo); }

std::u16string TArquivoInfo::GetNome() const {
    const auto dados = Interno::ProcurarArquivo(FArquivo);
    return dados ? dados->Nome : std::u16string();
}

std::u16string TArquivoInfo::GetTamanho() const {
    const auto dados = Interno::ProcurarArquivo(FArquivo);
    return InteiroParaTexto(dados ? static_cast<std::int64_t>(dados->Tamanho) : 0);
}

std::u16string TArquivoInfo::GetTamanhoFormatado() const {
    return TOryUtilsFiles::FormatarTamanhoArquivo(TextoParaInt64Padrao(GetTamanho(), 0));
}

std::u16string TArquivoInfo::GetExtensao() const { return MinusculaDe(ExtrairExtensaoDoArquivo(FArquivo)); }

TDateTime TArquivoInfo::GetData() const {
    Interno::TFluxo arquivo;
    if (arquivo.AbrirArquivoParaLer(FArquivo) != Interno::efNenhum) return {};
    return Interno::BuscarDataEmpacotada(arquivo.BuscarUltimaGravacao());
}

TDateTime TArquivoInfo::GetDataModificacao() const {
    const auto dados = Interno::ProcurarArquivo(FArquivo);
    return dados && !dados->EhPasta ? Interno::BuscarDataEmpacotada(dados->UltimaGravacao) : TDateTime();
}

std::u16string TOryUtilsFiles::BuscarVersaoArquivo(std::u16string_view AArquivo) {
    return Aparar(AArquivo).empty() ? std::u16string() : LerVersao(AArquivo);
}

std::u16string GetVersionFromINI(std::u16string_view AArquivo) { return LerVersaoIni(AArquivo); }

}  // namespace OryUtils
