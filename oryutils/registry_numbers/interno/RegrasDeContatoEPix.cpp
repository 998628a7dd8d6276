// Rules of phones, e-mail addresses and Pix.
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Hexadecimal.hpp"
#include "oryutils/registry_numbers/interno/CamposBrCode.hpp"
#include "oryutils/registry_numbers/interno/RegrasEspeciais.hpp"
#include "oryutils/registry_numbers/interno/SomasDeDocumentos.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

// Area codes, then what a number without one starts with.
constexpr TExigencia CAreas{"11-19 21-22 24 27-28 31-35 37-38 41-49 51 53-55 61-69 71 73-75 77 79 81-89 91-99"};
constexpr TExigencia CSemArea{"0300 0303 0500 0800 0900"};
constexpr TExigencia CSemAreaCurto{"300 400"};

bool Cumpre(const TExigencia& AExigencia, std::string_view ANumero) noexcept {
    return Interno::Cumpre(AExigencia, LerNumero(ANumero, [](char) { return false; }));
}

bool EhLetraOuDigito(char16_t c) noexcept { return EhLetra(c) || EhDigito(c); }

TMotivoRecusa ConferirDominio(std::u16string_view ADominio) noexcept {
    if (ADominio.empty() || ADominio.size() > 253) return mrForma;
    std::size_t rotulos = 0;
    std::u16string_view rotulo;
    for (bool ultimo = false; !ultimo; ++rotulos) {
        const std::size_t ponto = ADominio.find(u'.');
        ultimo = ponto == ADominio.npos;
        rotulo = ADominio.substr(0, ponto);
        if (!ultimo) ADominio.remove_prefix(ponto + 1);
        if (rotulo.empty() || rotulo.size() > 63 || rotulo.front() == u'-' || rotulo.back() == u'-') return mrForma;
        for (const char16_t c : rotulo)
            if (!EhLetraOuDigito(c) && c != u'-') return mrCaractere;
    }
    const bool letras = std::ranges::all_of(rotulo, EhLetra);
    const bool acentuado =
        rotulo.size() >= 4 && (rotulo[0] | 0x20) == u'x' && (rotulo[1] | 0x20) == u'n' && rotulo.substr(2, 2) == u"--";
    return rotulos >= 2 && rotulo.size() >= 2 && (letras || acentuado) ? mrNenhum : mrForma;
}

TMotivoRecusa ConferirEmail(std::u16string_view AEndereco) noexcept {
    constexpr std::u16string_view CPermitidos = u"!#$%&'*+/=?^_`{|}~-.";
    if (AEndereco.size() > 254) return mrTamanho;
    const std::size_t arroba = AEndereco.find(u'@');
    if (arroba == AEndereco.npos || AEndereco.find(u'@', arroba + 1) != AEndereco.npos) return mrForma;
    const std::u16string_view nome = AEndereco.substr(0, arroba);
    if (nome.empty() || nome.size() > 64) return mrForma;
    for (const char16_t c : nome)
        if (!EhLetraOuDigito(c) && CPermitidos.find(c) == CPermitidos.npos) return mrCaractere;
    if (nome.front() == u'.' || nome.back() == u'.' || nome.find(u"..") != nome.npos) return mrForma;
    return ConferirDominio(AEndereco.substr(arroba + 1));
}

bool EhChaveAleatoria(std::u16string_view AChave) noexcept {
    constexpr std::u16string_view CForma = u"hhhhhhhh-hhhh-hhhh-hhhh-hhhhhhhhhhhh";
    return AChave.size() == CForma.size() && std::ranges::equal(AChave, CForma, [](char16_t c, char16_t AForma) {
               return AForma == u'h' ? ValorHexadecimal(c) >= 0 : c == u'-';
           });
}

TMotivoRecusa ConferirComo(std::u16string_view ATipo, std::u16string_view ATexto, TDocumentoLido& ALido) noexcept {
    return ConferirDocumento(*BuscarTipoDeDocumento(ATipo), ATexto, {}, ALido);
}

std::string Minusculas(std::string ATexto) {
    for (char& c : ATexto) c = static_cast<char>(c | 0x20);
    return ATexto;
}

}  // namespace

std::string_view SemCodigoDoPais(std::string_view ATelefone) noexcept {
    if (ATelefone.starts_with("+55")) return ATelefone.substr(3);
    const bool comCodigo = (ATelefone.size() == 12 || ATelefone.size() == 13) && ATelefone.starts_with("55");
    return comCodigo ? ATelefone.substr(2) : ATelefone;
}

TMotivoRecusa ConferirTelefone(const TDocumentoLido& ALido) noexcept {
    const std::string_view inteiro = ALido.Numero;
    if (inteiro.starts_with('+') && !inteiro.starts_with("+55")) return mrPrefixo;
    const std::string_view numero = SemCodigoDoPais(inteiro);
    const bool comCodigo = numero.size() != inteiro.size();
    if (!comCodigo &&
        ((numero.size() == 11 && Cumpre(CSemArea, numero)) || (numero.size() == 8 && Cumpre(CSemAreaCurto, numero))))
        return mrNenhum;
    if (numero.size() != 10 && numero.size() != 11) return mrTamanho;
    const bool movel = numero.size() == 11;
    const bool inicio = movel ? numero[2] == '9' : numero[2] >= '2' && numero[2] <= '5';
    return inicio && Cumpre(CAreas, numero) ? mrNenhum : mrPrefixo;
}
std::string_view MascaraTelefone(const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = SemCodigoDoPais(ALido.Numero);
    if (numero.size() == 8) return "0000-0000";
    if (numero.size() == 10) return "(00) 0000-0000";
    return numero[0] == '0' ? "0000 000 0000" : "(00) 00000-0000";
}
std::string GerarTelefone(TSorteioDeDocumento& ASorteio, TUf) {
    const auto& area = CAreas.Faixas[static_cast<std::size_t>(ASorteio.Entre(0, static_cast<int>(CAreas.Quantas) - 1))];
    const std::string codigo = std::to_string(ASorteio.Entre(area.De, area.Ate));
    if (ASorteio.Entre(0, 2)) return codigo + "9" + ASorteio.Digitos(8);
    return codigo + ParaDigito(ASorteio.Entre(2, 5)) + ASorteio.Digitos(7);
}

TMotivoRecusa ConferirEnderecoDeEmail(const TDocumentoLido& ALido) noexcept { return ConferirEmail(ALido.Texto); }
std::string GerarEmail(TSorteioDeDocumento& ASorteio, TUf) {
    return Minusculas(ASorteio.Letras(6)) + "." + Minusculas(ASorteio.Letras(5)) + "@exemplo.com.br";
}

TMotivoRecusa ConferirChavePix(const TDocumentoLido& ALido) noexcept {
    const std::u16string_view chave = ALido.Texto;
    if (chave.find(u'@') != chave.npos) return chave.size() > 77 ? mrTamanho : ConferirEmail(chave);
    if (EhChaveAleatoria(chave)) return mrNenhum;
    TDocumentoLido lido;
    if (!chave.starts_with(u'+')) return ConferirComo(u"cpf_cnpj", chave, lido);
    const TMotivoRecusa motivo = ConferirComo(u"telefone", chave, lido);
    const bool movel = SemCodigoDoPais(lido.Numero).size() == 11;
    return motivo == mrNenhum && !movel ? mrPrefixo : motivo;
}
std::string GerarChavePix(TSorteioDeDocumento& ASorteio, TUf) {
    constexpr std::string_view CForma = "hhhhhhhh-hhhh-4hhh-8hhh-hhhhhhhhhhhh";
    std::string chave(CForma);
    for (char& c : chave)
        if (c == 'h') c = "0123456789abcdef"[ASorteio.Entre(0, 15)];
    return chave;
}

TMotivoRecusa ConferirPixCopiaECola(const TDocumentoLido& ALido) noexcept { return ConferirBrCode(ALido.Texto); }
std::string GerarPixCopiaECola(TSorteioDeDocumento& ASorteio, TUf AUf) {
    static constexpr std::string_view CNomes[]{"Padaria Exemplo", "Loja Modelo Ltda", "Maria da Silva"};
    static constexpr std::string_view CCidades[]{"SAO PAULO", "RECIFE", "CURITIBA"};
    const auto sortear = [&](const auto& ALista) {
        return ALista[static_cast<std::size_t>(ASorteio.Entre(0, static_cast<int>(std::size(ALista)) - 1))];
    };
    std::string codigo = MontarCampo("00", "01");
    codigo += MontarCampo("26", MontarCampo("00", "br.gov.bcb.pix") + MontarCampo("01", GerarChavePix(ASorteio, AUf)));
    codigo += MontarCampo("52", "0000") + MontarCampo("53", "986");
    codigo += MontarCampo("54", std::to_string(ASorteio.Entre(1, 9999)) + "." + ASorteio.Digitos(2));
    codigo += MontarCampo("58", "BR") + MontarCampo("59", sortear(CNomes)) + MontarCampo("60", sortear(CCidades));
    codigo += MontarCampo("62", MontarCampo("05", ASorteio.Letras(4) + ASorteio.Digitos(6))) + "6304";
    return codigo + CalcularCrc(codigo);
}

}  // namespace OryUtils::Interno
