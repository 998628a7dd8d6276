// What documents tell besides that they are valid.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/interno/CamposBrCode.hpp"
#include "oryutils/registry_numbers/interno/RegrasEspeciais.hpp"
#include "oryutils/registry_numbers/interno/SomasDeDocumentos.hpp"
#include "oryutils/registry_numbers/interno/UnidadesFederativas.hpp"

#include <algorithm>
#include <chrono>

namespace OryUtils::Interno {
namespace {

std::string_view SemZeros(std::string_view ADigitos) noexcept {
    const std::size_t primeiro = ADigitos.find_first_not_of('0');
    return primeiro == ADigitos.npos ? ADigitos.substr(ADigitos.size() - 1) : ADigitos.substr(primeiro);
}

/// Cents as "1.234,56".
std::u16string ParaReais(std::string_view ACentavos) {
    std::string centavos(SemZeros(ACentavos));
    if (centavos.size() < 3) centavos.insert(0, 3 - centavos.size(), '0');
    std::string reais = centavos.substr(0, centavos.size() - 2);
    for (std::size_t i = reais.size(); i > 3; i -= 3) reais.insert(i - 3, 1, '.');
    return Texto(reais + "," + centavos.substr(centavos.size() - 2));
}

struct TNomeado {
    std::string_view Codigo;
    std::u16string_view Nome;
};
template <std::size_t N>
std::u16string Nomear(const TNomeado (&ALista)[N], std::string_view ACodigo) {
    const auto achado = std::ranges::find(ALista, ACodigo, &TNomeado::Codigo);
    if (achado == std::end(ALista)) return Texto(ACodigo);
    return Texto(ACodigo) + u" (" + std::u16string(achado->Nome) + u")";
}

constexpr TNomeado CModelos[]{{"55", u"NF-e"},  {"57", u"CT-e"},   {"58", u"MDF-e"}, {"59", u"CF-e SAT"},
                              {"62", u"NFCom"}, {"63", u"BP-e"},   {"64", u"GTV-e"}, {"65", u"NFC-e"},
                              {"66", u"NF3-e"}, {"67", u"CT-e OS"}};
constexpr TNomeado CSegmentos[]{{"1", u"prefeituras"},
                                {"2", u"saneamento"},
                                {"3", u"energia elétrica e gás"},
                                {"4", u"telecomunicações"},
                                {"5", u"órgãos governamentais"},
                                {"6", u"carnês e demais empresas"},
                                {"7", u"multas de trânsito"},
                                {"9", u"uso do banco"}};
constexpr TNomeado CJusticas[]{
    {"1", u"Supremo Tribunal Federal"},     {"2", u"Conselho Nacional de Justiça"},
    {"3", u"Superior Tribunal de Justiça"}, {"4", u"Justiça Federal"},
    {"5", u"Justiça do Trabalho"},          {"6", u"Justiça Eleitoral"},
    {"7", u"Justiça Militar da União"},     {"8", u"Justiça dos Estados e do Distrito Federal"},
    {"9", u"Justiça Militar Estadual"}};

std::u16string FormatarComo(std::u16string_view ATipo, std::string_view ANumero) {
    return TOryUtilsDocumentos::FormatarDocumento(ATipo, Texto(ANumero));
}

// The issuer of a fiscal key: a CNPJ, or a CPF after three zeros.
std::u16string EscreverEmitente(std::string_view AQuatorze) {
    const bool pessoa = AQuatorze.starts_with("000") &&
                        TOryUtilsDocumentos::ValidouDocumento(u"cpf", Texto(AQuatorze.substr(3))) &&
                        !TOryUtilsDocumentos::ValidouDocumento(u"cnpj", Texto(AQuatorze));
    return pessoa ? FormatarComo(u"cpf", AQuatorze.substr(3)) : FormatarComo(u"cnpj", AQuatorze);
}

// The factor counts days from 1997-10-07 and began again, at 1000, on 2025-02-22. Banks read it as the count that lies
// at most 5,500 days ahead.
std::u16string EscreverVencimento(int AFator) {
    using namespace std::chrono;
    constexpr sys_days CContagem{year{2025} / 2 / 22};
    constexpr sys_days CContagemAnterior{year{1997} / 10 / 7};
    const sys_days hoje = floor<days>(system_clock::now());
    sys_days vencimento = CContagem + days(AFator - 1000);
    if (vencimento > hoje + days(5500) || AFator < 1000) vencimento = CContagemAnterior + days(AFator);
    const year_month_day data{vencimento};
    const auto dois = [](unsigned ANumero) { return std::to_string(100 + ANumero).substr(1); };
    return Texto(dois(static_cast<unsigned>(data.day())) + "/" + dois(static_cast<unsigned>(data.month())) + "/" +
                 std::to_string(static_cast<int>(data.year())));
}

void AnexarCampo(TFatos& AFatos, std::u16string_view ANome, std::optional<std::u16string_view> AValor) {
    if (AValor && !AValor->empty()) AFatos.push_back({std::u16string(ANome), std::u16string(*AValor)});
}

}  // namespace

void InterpretarCep(const TDocumentoLido& ALido, TFatos& AFatos) {
    const TNumeroLido lido = LerNumero(std::string_view(ALido.Numero), [](char) { return false; });
    for (const TUnidadeFederativa& uf : CUnidadesFederativas)
        if (Cumpre(uf.Ceps, lido)) AFatos.push_back({u"UF", Texto(uf.Sigla)});
}

void InterpretarTelefone(const TDocumentoLido& ALido, TFatos& AFatos) {
    const std::string_view numero = SemCodigoDoPais(ALido.Numero);
    if (numero.size() == 8 || numero[0] == '0') {
        AFatos.push_back({u"Tipo", u"serviço"});
        return;
    }
    AFatos.push_back({u"Área", Texto(numero.substr(0, 2))});
    AFatos.push_back({u"Tipo", numero.size() == 11 ? u"celular" : u"fixo"});
}

void InterpretarChaveFiscal(const TDocumentoLido& ALido, TFatos& AFatos) {
    const std::string_view chave = ALido.Numero;
    const std::string_view modelo = chave.substr(20, 2);
    AFatos.push_back({u"UF", Texto(BuscarUfPorCodigo(chave.substr(0, 2))->Sigla)});
    AFatos.push_back({u"Mês", Texto(chave.substr(4, 2)) + u"/20" + Texto(chave.substr(2, 2))});
    AFatos.push_back({u"Emitente", EscreverEmitente(chave.substr(6, 14))});
    AFatos.push_back({u"Modelo", Nomear(CModelos, modelo)});
    if (modelo == "59") return;  // its other digits are divided in another way
    AFatos.push_back({u"Série", Texto(SemZeros(chave.substr(22, 3)))});
    AFatos.push_back({u"Número", Texto(SemZeros(chave.substr(25, 9)))});
}

void InterpretarBoleto(const TDocumentoLido& ALido, TFatos& AFatos) {
    const TNumeroLimpo lido = CodigoDeBarrasDoBoleto(ALido.Numero);
    const std::string_view codigo = lido;
    AFatos.push_back({u"Banco", Texto(codigo.substr(0, 3))});
    if (const int fator = ParaInteiro(codigo.substr(5, 4)))
        AFatos.push_back({u"Vencimento", EscreverVencimento(fator)});
    if (SemZeros(codigo.substr(9, 10)) != "0") AFatos.push_back({u"Valor", ParaReais(codigo.substr(9, 10))});
}

void InterpretarArrecadacao(const TDocumentoLido& ALido, TFatos& AFatos) {
    const TNumeroLimpo lido = CodigoDeBarrasDaArrecadacao(ALido.Numero);
    const std::string_view codigo = lido;
    AFatos.push_back({u"Segmento", Nomear(CSegmentos, codigo.substr(1, 1))});
    const bool emReais = codigo[2] == '6' || codigo[2] == '8';
    AFatos.push_back({emReais ? u"Valor" : u"Quantidade de referência",
                      emReais ? ParaReais(codigo.substr(4, 11)) : Texto(SemZeros(codigo.substr(4, 11)))});
}

void InterpretarPixCopiaECola(const TDocumentoLido& ALido, TFatos& AFatos) {
    const std::u16string_view pix = BuscarCampoPix(ALido.Texto).value_or(u"");
    AnexarCampo(AFatos, u"Chave", BuscarCampo(pix, 1));
    AnexarCampo(AFatos, u"Endereço", BuscarCampo(pix, 25));
    AnexarCampo(AFatos, u"Valor", BuscarCampo(ALido.Texto, 54));
    AnexarCampo(AFatos, u"Recebedor", BuscarCampo(ALido.Texto, 59));
    AnexarCampo(AFatos, u"Cidade", BuscarCampo(ALido.Texto, 60));
    AnexarCampo(AFatos, u"Identificador", BuscarCampo(BuscarCampo(ALido.Texto, 62).value_or(u""), 5));
}

void InterpretarProcesso(const TDocumentoLido& ALido, TFatos& AFatos) {
    const std::string_view numero = ALido.Numero;
    AFatos.push_back({u"Ano", Texto(numero.substr(9, 4))});
    AFatos.push_back({u"Justiça", Nomear(CJusticas, numero.substr(13, 1))});
    AFatos.push_back({u"Tribunal", Texto(numero.substr(14, 2))});
    AFatos.push_back({u"Origem", Texto(numero.substr(16, 4))});
}

void InterpretarIban(const TDocumentoLido& ALido, TFatos& AFatos) {
    const std::string_view numero = ALido.Numero;
    AFatos.push_back({u"Banco (ISPB)", Texto(numero.substr(4, 8))});
    AFatos.push_back({u"Agência", Texto(numero.substr(12, 5))});
    AFatos.push_back({u"Conta", Texto(numero.substr(17, 10))});
    AFatos.push_back({u"Tipo da conta", Texto(numero.substr(27, 1))});
    AFatos.push_back({u"Titular", Texto(numero.substr(28, 1))});
}

}  // namespace OryUtils::Interno
