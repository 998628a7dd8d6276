#include "apps/cadastro/Cadastro.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include <algorithm>
#include <cstdint>

namespace OryUtils::Cadastro {
namespace {

constexpr std::size_t CDigitosCep = 8;
constexpr std::size_t CDigitosCpf = 11;
// The area code of two digits, the number of eight or nine.
constexpr std::size_t CMenorFone = 10;
constexpr std::size_t CMaiorFone = 11;
constexpr std::int16_t CPrecisaoValor = 15;
constexpr std::int16_t CDecimaisValor = 2;

// clang-format off
constexpr std::array<std::u16string_view, 27> CUFs{
    u"AC", u"AL", u"AM", u"AP", u"BA", u"CE", u"DF", u"ES", u"GO", u"MA", u"MG", u"MS", u"MT", u"PA",
    u"PB", u"PE", u"PI", u"PR", u"RJ", u"RN", u"RO", u"RR", u"RS", u"SC", u"SE", u"SP", u"TO"};
// clang-format on

bool EstahEmBranco(std::u16string_view ATexto) { return ATexto.find_first_not_of(u' ') == ATexto.npos; }

std::u16string SemPontuacao(std::u16string_view ATexto) {
    std::u16string limpo(ATexto);
    std::erase_if(limpo, [](char16_t c) { return !EhDigito(c) && !EhLetra(c); });
    return limpo;
}

std::size_t ContarDigitos(std::u16string_view ATexto) {
    return static_cast<std::size_t>(std::ranges::count_if(ATexto, [](char16_t c) { return EhDigito(c); }));
}

void FormatarMunicipio(TField& ACampo) { FormatarCampo(ACampo, u"9999999;0; "); }
void FormatarNascimento(TField& ACampo) { FormatarCampo(ACampo, u"99/99/9999;1;_"); }

void RecusarSe(bool ARuim, const TObjeto* ASender, TWinControl* AControle, std::u16string_view AMensagem) {
    if (ARuim && ValidarCampo(ASender, AControle)) TOryUtilsValidacoes::TratarResultadoValidacao(AControle, AMensagem);
}

void ConferirNome(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    ValidarString(ASender, AControle, AValores[caNome], u"Informe o nome do cliente.");
}

void ConferirDocumento(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    const std::u16string numero = SemPontuacao(AValores[caDocumento]);
    if (std::ranges::any_of(numero, EhLetra))
        return RecusarSe(!ValidouCnpjAlfanumerico(numero), ASender, AControle, u"CNPJ inválido. Verifique.");
    ValidarDocumento(ASender, AControle, numero, numero.size() <= CDigitosCpf ? OryTypes::tiCPF : OryTypes::tiCNPJ);
}

void ConferirCEP(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    const std::size_t digitos = ContarDigitos(AValores[caCEP]);
    RecusarSe(digitos != 0 && digitos != CDigitosCep, ASender, AControle, u"CEP inválido: são oito dígitos.");
}

void ConferirFone(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    const std::size_t digitos = ContarDigitos(AValores[caFone]);
    RecusarSe(digitos != 0 && (digitos < CMenorFone || digitos > CMaiorFone), ASender, AControle,
              u"Telefone inválido: informe o DDD e o número.");
}

void ConferirUF(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    ValidarString(ASender, AControle, AValores[caUF], u"Escolha a UF.");
}

void ConferirIE(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    if (EstahEmBranco(AValores[caIE])) return;
    ValidarIE(ASender, AControle, SemPontuacao(AValores[caIE]), AValores[caUF],
              u"Inscrição estadual inválida para a UF. Verifique.");
}

void ConferirMunicipio(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    const std::u16string codigo = SemPontuacao(AValores[caMunicipio]);
    RecusarSe(!codigo.empty() && !ValidouCodigoMunicipioOficial(codigo), ASender, AControle,
              u"Código do município inválido. Verifique.");
}

void ConferirValor(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    if (EstahEmBranco(AValores[caValor])) return;
    ValidarCampoNumerico(ASender, AControle, AValores[caValor], u"Valor inválido. Verifique.", CPrecisaoValor,
                         CDecimaisValor);
}

void ConferirNascimento(const TObjeto* ASender, TWinControl* AControle, const TValores& AValores) {
    if (ContarDigitos(AValores[caNascimento]) > 0)
        ValidarData(ASender, AControle, AValores[caNascimento],
                    u"Data de nascimento inválida: use dia/mês/ano, como 31/12/1999.");
}

}  // namespace

// clang-format off
const std::array<TDescricaoCampo, CQuantidadeCampos> CCampos{{
    {u"&Nome",                {},              -1, 40, ftString, nullptr,                        &ConferirNome,       caNome,          u"Comercial Modelo Ltda."},
    {u"&CPF ou CNPJ",         {},              -1, 20, ftString, &FormatarCpfCnpj,               &ConferirDocumento,  caDocumento,     u"11222333000181"},
    {u"C&EP",                 {},              -1, 10, ftString, &FormatarCEP,                   &ConferirCEP,        caCEP,           u"01310100"},
    {u"&Telefone",            {},              -1, 16, ftString, &FormatarFoneDDD,               &ConferirFone,       caFone,          u"11987654321"},
    {u"&UF",                  CUFs,            -1,  4, ftString, nullptr,                        &ConferirUF,         caUF,            u"SP"},
    {u"&Inscrição estadual",  {},              -1, 20, ftString, nullptr,                        &ConferirIE,         caUF,            u"110.042.490.114"},
    {u"Código do &município", {},              -1, 10, ftString, &FormatarMunicipio,             &ConferirMunicipio,  caMunicipio,     u"3550308"},
    {u"&Valor do crédito",    {},              -1, 16, ftFloat,  &FormatarCampoValor,            &ConferirValor,      caValor,         u"1234,56"},
    {u"&Data de nascimento",  {},              -1, 12, ftDate,   &FormatarNascimento,            &ConferirNascimento, caNascimento,    u"31/12/1999"},
}};
// clang-format on

TCadastro::TCadastro() {
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        const TDescricaoCampo& campo = CCampos[i];
        if (!campo.Formatar) continue;
        FCampos[i] = EhCampoNumerico(campo.Tipo) ? std::make_unique<TNumericField>(campo.Tipo)
                                                 : std::make_unique<TField>(campo.Tipo);
        campo.Formatar(*FCampos[i]);
    }
}

TCadastro::~TCadastro() = default;

void TCadastro::Exemplificar() {
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        EscreverCaixa(i, CCampos[i].Exemplo);
        if (TEditorDeCampo* editor = GetEditor(i)) editor->Gravar();
    }
}

// What the field took, as the rules want it; else what the user must still correct.
TValores TCadastro::LerValores() {
    TValores valores;
    for (std::size_t i = 0; i < valores.size(); ++i) {
        TEditorDeCampo* editor = GetEditor(i);
        if (editor) editor->Gravar();
        valores[i] = editor && editor->GetErro().empty() ? FCampos[i]->GetTexto() : LerCaixa(i);
    }
    return valores;
}

void TCadastro::AoSair(std::size_t ACampo, std::size_t AFoco) {
    const TDescricaoCampo& campo = CCampos[ACampo];
    if (FValidando || !campo.Validar || AFoco == ACampo || AFoco == static_cast<std::size_t>(campo.Escolha)) return;
    Tratar([&] {
        TWinControl& controle = GetControle(ACampo);
        campo.Validar(&controle, &controle, LerValores());
    });
}

void TCadastro::AoSalvar() {
    if (FValidando) return;
    Tratar([&] {
        const TValores valores = LerValores();
        for (std::size_t i = 0; i < CCampos.size(); ++i)
            if (CCampos[i].Validar) CCampos[i].Validar(nullptr, &GetControle(i), valores);
        GOryUtilsDialogs->Informacao(u"Cliente conferido: todos os campos são válidos.");
    });
}

std::u16string TCadastro::BuscarPorExtenso() {
    const TEditorDeCampo* editor = GetEditor(caValor);
    const auto numero = editor ? editor->LerNumero(LerCaixa(caValor)) : std::nullopt;
    const auto valor = numero ? TentarTextoParaExtended(*numero) : std::nullopt;
    if (!valor) return {};
    try {
        return TOryUtilsMatematica::BuscarValorPorExtenso(*valor);
    } catch (const Exception&) {
        return {};  // negative, or more than words can tell
    }
}

// A handler of the host: what aborts ends silently, any other error is shown.
void TCadastro::Tratar(const std::function<void()>& ATratador) {
    FValidando = true;
    try {
        ATratador();
    } catch (const EAbort&) {
        // Silent by its meaning.
    } catch (const Exception& erro) {
        GOryUtilsDialogs->Erro(erro.GetMensagem());
    }
    FValidando = false;
}

}  // namespace OryUtils::Cadastro
