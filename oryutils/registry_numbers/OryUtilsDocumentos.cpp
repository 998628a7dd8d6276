#include "oryutils/registry_numbers/OryUtilsDocumentos.hpp"

#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/interno/RegrasEspeciais.hpp"
#include "oryutils/registry_numbers/interno/TipoDeDocumento.hpp"

namespace OryUtils {
namespace {

using namespace Interno;
using C = TOryUtilsDocumentos;

[[noreturn]] void RecusarTipo(std::u16string_view ATipo) {
    std::u16string nomes;
    for (const TTipoDeDocumento& tipo : BuscarTiposDeDocumento())
        nomes += (nomes.empty() ? u"" : u", ") + Texto(tipo.Nome);
    throw Exception(u"Não existe o tipo de documento \"" + std::u16string(ATipo) + u"\". Os tipos são: " + nomes +
                    u".");
}

const TTipoDeDocumento& ExigirTipo(std::u16string_view ATipo) {
    if (const TTipoDeDocumento* tipo = BuscarTipoDeDocumento(ATipo)) return *tipo;
    RecusarTipo(ATipo);
}

std::string_view BuscarMascara(const TTipoDeDocumento& ATipo, const TDocumentoLido& ALido) {
    if (ATipo.BuscarMascara) return ATipo.BuscarMascara(ALido);
    const TFormatoDocumento* formato = nullptr;
    ConferirFormatos(ATipo.Formatos, ALido.Numero, &formato);
    return formato ? formato->Mascara : std::string_view();
}

// Each "0" of the mask takes a character. A letter of the mask is one of the number.
std::u16string Despejar(std::string_view AMascara, std::string_view ANumero) {
    std::u16string texto;
    for (const char lugar : AMascara) {
        const bool doNumero = lugar == '0' || lugar == ANumero.front();
        texto += static_cast<char16_t>(doNumero ? ANumero.front() : lugar);
        if (doNumero) ANumero.remove_prefix(1);
        if (ANumero.empty()) break;
    }
    return texto;
}

std::string_view Guardado(const TTipoDeDocumento& ATipo, const TDocumentoLido& ALido) noexcept {
    const std::string_view numero = ALido.Numero;
    return ATipo.Leitura == leTelefone ? SemCodigoDoPais(numero) : numero;
}

std::u16string EscreverMotivo(const TTipoDeDocumento& ATipo, TMotivoRecusa AMotivo) {
    const std::u16string titulo(ATipo.Titulo);
    const std::u16string sujeito = (ATipo.Feminino ? u"A " : u"O ") + titulo;
    const std::u16string dele = (ATipo.Feminino ? u"da " : u"do ") + titulo;
    switch (AMotivo) {
        case mrNenhum:
            return {};
        case mrVazio:
            return (ATipo.Feminino ? u"Informe a " : u"Informe o ") + titulo + u".";
        case mrTamanho:
            return sujeito + u" deve ter " + std::u16string(ATipo.Forma) + u".";
        case mrCaractere:
            return sujeito + u" tem um caractere que não pode estar onde está.";
        case mrPrefixo:
            return sujeito + u" tem um código que não existe.";
        case mrDigito:
            return sujeito + (ATipo.Leitura == leTexto ? u" não confere com o próprio controle."
                                                       : u" tem o dígito verificador errado.");
        case mrRepetido:
            return sujeito + u" não pode ser um só algarismo repetido.";
        case mrUf:
            return u"A UF informada não existe.";
        case mrContexto:
            return u"Falta informar a UF " + dele + u".";
        case mrForaDoContexto:
            return sujeito + u" não é da UF informada.";
        case mrData:
            return u"A data dentro " + dele + u" não existe.";
        case mrForma:
        case mrTipo:
            break;
    }
    return sujeito + u" deve ter a forma: " + std::u16string(ATipo.Forma) + u".";
}

}  // namespace

bool C::ValidouDocumento(std::u16string_view ATipo, std::u16string_view ANumero, std::u16string_view AContexto) {
    return BuscarMotivoRecusa(ATipo, ANumero, AContexto) == mrNenhum;
}

TMotivoRecusa C::BuscarMotivoRecusa(std::u16string_view ATipo, std::u16string_view ANumero,
                                    std::u16string_view AContexto) {
    TDocumentoLido lido;
    return ConferirDocumento(ExigirTipo(ATipo), ANumero, AContexto, lido);
}

std::u16string C::BuscarTextoMotivoRecusa(std::u16string_view ATipo, std::u16string_view ANumero,
                                          std::u16string_view AContexto) {
    return EscreverMotivo(ExigirTipo(ATipo), BuscarMotivoRecusa(ATipo, ANumero, AContexto));
}

std::u16string C::FormatarDocumento(std::u16string_view ATipo, std::u16string_view ANumero,
                                    std::u16string_view AContexto) {
    const TTipoDeDocumento& tipo = ExigirTipo(ATipo);
    TDocumentoLido lido;
    if (ConferirDocumento(tipo, ANumero, AContexto, lido) != mrNenhum || tipo.Leitura == leTexto)
        return std::u16string(ANumero);
    const std::string_view mascara = BuscarMascara(tipo, lido);
    return mascara.empty() ? std::u16string(ANumero) : Despejar(mascara, Guardado(tipo, lido));
}

std::u16string C::LimparDocumento(std::u16string_view ATipo, std::u16string_view ANumero,
                                  std::u16string_view AContexto) {
    const TTipoDeDocumento& tipo = ExigirTipo(ATipo);
    TDocumentoLido lido;
    if (ConferirDocumento(tipo, ANumero, AContexto, lido) != mrNenhum) return std::u16string(ANumero);
    return tipo.Leitura == leTexto ? std::u16string(lido.Texto) : Texto(Guardado(tipo, lido));
}

std::u16string C::GerarDocumento(std::u16string_view ATipo, std::int64_t ASemente, std::u16string_view AContexto) {
    const TTipoDeDocumento& tipo = ExigirTipo(ATipo);
    TDocumentoLido contexto;
    const TMotivoRecusa motivo = ConferirDocumento(tipo, u"1", AContexto, contexto);
    if (motivo == mrUf || motivo == mrContexto) return {};
    TSorteioDeDocumento sorteio(static_cast<std::uint64_t>(ASemente));
    // A rare draw is none: a number of one digit alone, a code given out with another check digit.
    for (;;) {
        const std::u16string numero =
            Texto(tipo.Gerar ? tipo.Gerar(sorteio, contexto.Uf) : GerarDosFormatos(tipo.Formatos, sorteio));
        TDocumentoLido lido;
        if (ConferirDocumento(tipo, numero, AContexto, lido) == mrNenhum) return numero;
    }
}

std::vector<TFatoDocumento> C::InterpretarDocumento(std::u16string_view ATipo, std::u16string_view ANumero) {
    const TTipoDeDocumento& tipo = ExigirTipo(ATipo);
    std::vector<TFatoDocumento> fatos;
    TDocumentoLido lido;
    if (tipo.Interpretar && ConferirDocumento(tipo, ANumero, {}, lido) == mrNenhum) tipo.Interpretar(lido, fatos);
    return fatos;
}

std::vector<std::u16string> C::BuscarTiposDocumento() {
    std::vector<std::u16string> nomes;
    for (const TTipoDeDocumento& tipo : BuscarTiposDeDocumento()) nomes.push_back(Texto(tipo.Nome));
    return nomes;
}

TDescricaoDocumento C::BuscarDescricaoDocumento(std::u16string_view ATipo) {
    const TTipoDeDocumento& tipo = ExigirTipo(ATipo);
    static constexpr std::u16string_view CContextos[]{u"", u"UF", u"UF, se houver"};
    return {Texto(tipo.Nome),
            std::u16string(tipo.Titulo),
            std::u16string(tipo.Palavras),
            std::u16string(tipo.Forma),
            std::u16string(tipo.Exemplo),
            std::u16string(tipo.Regra),
            std::u16string(tipo.Fonte),
            std::u16string(CContextos[tipo.Contexto])};
}

bool C::ValidarNumeroDocumento(const TObjeto* ASender, TWinControl* AControle, std::u16string_view ATipo,
                               std::u16string_view ANumero, std::u16string_view AContexto) {
    const TMotivoRecusa motivo = BuscarMotivoRecusa(ATipo, ANumero, AContexto);
    if (motivo != mrNenhum && motivo != mrVazio && TOryUtilsValidacoes::ValidouCampo(ASender, AControle))
        TOryUtilsValidacoes::TratarResultadoValidacao(AControle, EscreverMotivo(ExigirTipo(ATipo), motivo));
    return motivo == mrNenhum;
}

}  // namespace OryUtils
