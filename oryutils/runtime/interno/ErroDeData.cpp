#include "oryutils/runtime/interno/ErroDeData.hpp"

#include "oryutils/runtime/Excecoes.hpp"

#include <string>

namespace OryUtils::Interno {
namespace {

[[noreturn]] void Levantar(std::u16string_view ATexto, std::u16string_view AMotivo) {
    constexpr std::size_t CMaiorTrecho = 64;
    std::u16string mensagem = u"'";
    mensagem += ATexto.substr(0, CMaiorTrecho);
    if (ATexto.size() > CMaiorTrecho) mensagem += u"...";
    mensagem += u"' ";
    mensagem += AMotivo;
    throw EConvertError(mensagem);
}

}  // namespace

void DataInvalida(std::u16string_view ATexto) { Levantar(ATexto, u"não é uma data válida"); }
void HoraInvalida(std::u16string_view ATexto) { Levantar(ATexto, u"não é uma hora válida"); }
void DataXmlInvalida(std::u16string_view ATexto) { Levantar(ATexto, u"não é uma data XML válida"); }
void DataXmlForaDoIntervalo(std::u16string_view ATexto) {
    Levantar(ATexto, u"está fora do intervalo de datas (anos 1 a 9999)");
}
void DeslocamentoInvalido(std::u16string_view ATexto) {
    Levantar(ATexto, u"não é um deslocamento de fuso horário válido (até 14 horas)");
}
void ForaDoIntervalo() { throw EConvertError(u"A data está fora do intervalo de datas (anos 1 a 9999)"); }

}  // namespace OryUtils::Interno
