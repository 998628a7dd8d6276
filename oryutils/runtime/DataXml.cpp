#include "oryutils/runtime/DataXml.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/platform/FusoHorario.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/runtime/interno/Calendario.hpp"
#include "oryutils/runtime/interno/ErroDeData.hpp"

#include <cstdlib>
#include <optional>

namespace OryUtils {
namespace {

constexpr int CMaiorDeslocamento = 14 * 60;
constexpr std::int64_t CMilisPorMinuto = 60 * 1000;

int BuscarDeslocamentoDoSistema(const Interno::TDiaEMili& AValor) {
    const TPartesData data = Interno::DeDias(static_cast<int>(AValor.Dia));
    const TPartesHora hora = Interno::DeMilis(AValor.Mili);
    return Interno::BuscarDeslocamentoLocal(
        {data.Ano, data.Mes, data.Dia, hora.Hora, hora.Minuto, hora.Segundo, hora.Milissegundo});
}

std::u16string EscreverDeslocamento(int AMinutos) {
    if (AMinutos == 0) return u"Z";
    const int minutos = std::abs(AMinutos);
    const auto digito = [](int AValor) { return static_cast<char16_t>(u'0' + AValor % 10); };
    return {AMinutos < 0 ? u'-' : u'+', digito(minutos / 600), digito(minutos / 60), u':',
            digito(minutos % 60 / 10),  digito(minutos % 60)};
}

// What the text says, before its zone is applied.
struct TLido {
    std::int64_t Dia = 0;
    std::int64_t Mili = 0;  // 24:00:00 and a fraction that rounds up may reach a whole day
    std::optional<int> Deslocamento{};
};

enum TFalha : int { flNenhuma, flForma, flIntervalo };

// Reads strictly: what the Schema does not allow is no date.
class TLeitorXml {
public:
    explicit TLeitorXml(std::u16string_view ATexto) : FTexto(ATexto) {}

    TFalha Ler(TLido& ALido) {
        int ano = 0, mes = 0, dia = 0;
        if (!LerAno(ano) || !Pular(u'-') || !LerDois(mes) || !Pular(u'-') || !LerDois(dia)) return flForma;
        if (Pular(u'T') && !LerHora(ALido.Mili)) return flForma;
        if (!LerZona(ALido.Deslocamento) || !FTexto.empty()) return flForma;
        // The year 4 stands for those that are far away: a leap year, as any of them may be.
        const auto data = TentarCodificarData(FForaDoIntervalo ? 4 : ano, mes, dia);
        if (!data) return flForma;
        if (FForaDoIntervalo) return flIntervalo;
        ALido.Dia = static_cast<std::int64_t>(data->Valor);
        return flNenhuma;
    }

private:
    bool Pular(char16_t ACaractere) {
        if (FTexto.empty() || FTexto.front() != ACaractere) return false;
        FTexto.remove_prefix(1);
        return true;
    }

    std::u16string_view TirarDigitos() {
        std::size_t quantidade = 0;
        while (quantidade < FTexto.size() && EhDigito(FTexto[quantidade])) ++quantidade;
        const std::u16string_view digitos = FTexto.substr(0, quantidade);
        FTexto.remove_prefix(quantidade);
        return digitos;
    }

    bool LerDois(int& AValor) {
        if (FTexto.size() < 2 || !EhDigito(FTexto[0]) || !EhDigito(FTexto[1])) return false;
        AValor = (FTexto[0] - u'0') * 10 + (FTexto[1] - u'0');
        FTexto.remove_prefix(2);
        return true;
    }

    // Four digits, or more without a leading zero; years before 1 and after 9999 are well formed but no date-time.
    bool LerAno(int& AAno) {
        const bool negativo = Pular(u'-');
        const std::u16string_view digitos = TirarDigitos();
        if (digitos.size() < 4 || (digitos.size() > 4 && digitos.front() == u'0')) return false;
        for (const char16_t c : digitos.substr(0, 4)) AAno = AAno * 10 + (c - u'0');
        FForaDoIntervalo = negativo || digitos.size() > 4 || AAno == 0;
        return true;
    }

    bool LerHora(std::int64_t& AMili) {
        int hora = 0, minuto = 0, segundo = 0, fracao = 0;
        bool fracaoNula = true;
        if (!LerDois(hora) || !Pular(u':') || !LerDois(minuto) || !Pular(u':') || !LerDois(segundo)) return false;
        if (Pular(u'.')) {
            const std::u16string_view digitos = TirarDigitos();
            if (digitos.empty()) return false;
            const auto digito = [&](std::size_t i) { return i < digitos.size() ? digitos[i] - u'0' : 0; };
            fracao = digito(0) * 100 + digito(1) * 10 + digito(2) + (digito(3) >= 5 ? 1 : 0);
            fracaoNula = digitos.find_first_not_of(u'0') == std::u16string_view::npos;
        }
        if (hora == 24 && minuto == 0 && segundo == 0 && fracaoNula) {
            AMili = Interno::CMilisPorDia;
            return true;
        }
        if (hora > 23 || minuto > 59 || segundo > 59) return false;
        AMili = ((hora * 60 + minuto) * 60 + segundo) * 1000 + fracao;
        return true;
    }

    bool LerZona(std::optional<int>& AMinutos) {
        if (FTexto.empty()) return true;
        if (Pular(u'Z')) {
            AMinutos = 0;
            return true;
        }
        const bool oeste = Pular(u'-');
        int hora = 0, minuto = 0;
        if ((!oeste && !Pular(u'+')) || !LerDois(hora) || !Pular(u':') || !LerDois(minuto)) return false;
        const int total = hora * 60 + minuto;
        if (minuto > 59 || total > CMaiorDeslocamento) return false;
        AMinutos = oeste ? -total : total;
        return true;
    }

    std::u16string_view FTexto;
    bool FForaDoIntervalo = false;
};

// ALocal gives the offset of a text without zone from its day and millisecond.
template <typename TLocal>
TDateTime LerXml(std::u16string_view ATexto, TLocal ALocal) {
    const std::u16string_view texto = Aparar(ATexto);
    TLido lido;
    const TFalha falha = TLeitorXml(texto).Ler(lido);
    if (falha == flForma) Interno::DataXmlInvalida(ATexto);
    if (falha == flIntervalo) Interno::DataXmlForaDoIntervalo(ATexto);
    Interno::TDiaEMili instante{lido.Dia + lido.Mili / Interno::CMilisPorDia,
                                static_cast<int>(lido.Mili % Interno::CMilisPorDia)};
    if (!instante.TemData()) Interno::DataXmlForaDoIntervalo(ATexto);
    const std::int64_t deslocamento = lido.Deslocamento ? *lido.Deslocamento : ALocal(instante);
    const TDateTime utc = IncrementarMilissegundos(Interno::Recompor(instante), -deslocamento * CMilisPorMinuto);
    if (!Interno::Decompor(utc)->TemData()) Interno::DataXmlForaDoIntervalo(ATexto);
    return utc;
}

}  // namespace

std::u16string DataHoraParaXml(TDateTime AData, int ADeslocamentoMinutos) {
    if (ADeslocamentoMinutos < -CMaiorDeslocamento || ADeslocamentoMinutos > CMaiorDeslocamento)
        Interno::DeslocamentoInvalido(InteiroParaTexto(ADeslocamentoMinutos));
    if (DecodificarData(AData).Ano == 0) Interno::ForaDoIntervalo();
    // Only marks of the Schema: the separators of the formats play no part.
    return FormatarDataHora(u"yyyy-mm-dd'T'hh':'nn':'ss.zzz", AData) + EscreverDeslocamento(ADeslocamentoMinutos);
}

std::u16string DataHoraParaXml(TDateTime AData) {
    const auto valor = Interno::Decompor(AData);
    if (!valor || !valor->TemData()) Interno::ForaDoIntervalo();
    return DataHoraParaXml(AData, BuscarDeslocamentoDoSistema(*valor));
}

TDateTime XmlParaDataHoraUtc(std::u16string_view ATexto, int ADeslocamentoLocalMinutos) {
    return LerXml(ATexto, [&](const Interno::TDiaEMili&) { return ADeslocamentoLocalMinutos; });
}

TDateTime XmlParaDataHoraUtc(std::u16string_view ATexto) { return LerXml(ATexto, BuscarDeslocamentoDoSistema); }

}  // namespace OryUtils
