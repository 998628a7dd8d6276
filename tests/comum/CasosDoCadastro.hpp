#pragma once

#include "apps/cadastro/Cadastro.hpp"

namespace OryUtils::Cadastro {

/// What is typed into a box of the sample window, whatever its toolkit, and what comes of it.
struct TCasoDeCampo {
    TCampo Campo;
    const char* Digitado;
    const char* NaCaixa;
    const char* Depois;           // left
    const char* Aviso = nullptr;  // none: it is good
};
inline constexpr const char* CDataRuim = "Data de nascimento inválida: use dia/mês/ano, como 31/12/1999.";
inline constexpr TCasoDeCampo CCasosDeCampo[] = {
    {caNome, "", "", "", "Informe o nome do cliente."},
    {caDocumento, "11222333000181", "11.222.333/0001-81", "11.222.333/0001-81"},
    {caDocumento, "529 982 247 25", "529.982.247-25", "529.982.247-25"},
    {caDocumento, "12abc34501de35", "12.ABC.345/01DE-35", "12.ABC.345/01DE-35"},
    {caDocumento, "11222333000182", "11.222.333/0001-82", "11.222.333/0001-82", "CNPJ inválido. Verifique."},
    {caDocumento, "12ABC34501DE36", "12.ABC.345/01DE-36", "12.ABC.345/01DE-36", "CNPJ inválido. Verifique."},
    {caDocumento, "52998224726", "529.982.247-26", "529.982.247-26", "CPF inválido. Verifique."},
    {caDocumento, "529982", "529.982.   -  ", "529.982.   -  ", "CPF inválido. Verifique."},
    {caCEP, "01310x100", "01310-100", "01310-100"},
    {caCEP, "0131010", "01310-10 ", "01310-10 ", "CEP inválido: são oito dígitos."},
    {caFone, "(11) 98765-4321", "(11)98765-4321", "(11)98765-4321"},
    {caFone, "0800 123 4567", "0800 123 4567", "0800 123 4567"},
    {caFone, "98765432", "(98)7654-32  ", "(98)7654-32  ", "Telefone inválido: informe o DDD e o número."},
    {caMunicipio, "35a50308", "3550308", "3550308"},
    {caMunicipio, "3550309", "3550309", "3550309", "Código do município inválido. Verifique."},
    {caValor, "1.234,5x6", "1.234,56", "1.234,56"},
    {caValor, "-", "-", "-", "Valor inválido. Verifique."},
    {caNascimento, "31121999", "31/12/1999", "31/12/1999"},
    {caNascimento, "30021999", "30/02/1999", "30/02/1999", CDataRuim},
    {caNascimento, "3002", "30/02/____", "30/02/____", CDataRuim},
};
inline constexpr const char* CValorPorExtenso = "UM MIL E DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA E SEIS CENTAVOS";

}  // namespace OryUtils::Cadastro
