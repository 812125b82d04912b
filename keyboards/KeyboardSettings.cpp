#include "keyboards/KeyboardSettings.h"

namespace ondrilo {

namespace {

ScanningMethod MethodOf(TextView name) {
    if (name == "Regular")
        return ScanningMethod::Regular;
    if (name == "Inverso")
        return ScanningMethod::Inverso;
    return name == "Passo-a-Passo" ? ScanningMethod::PassoAPasso : ScanningMethod::Nenhum;
}

} // namespace

KeyboardSettings MakeKeyboardSettings(const CUserProfileProperties& profile, const CAccessOptions& access) {
    KeyboardSettings settings;
    settings.font = {profile.Get(option::TIPO_LETRA), profile.Get(option::TAMANHO_LETRAS_PALAVRAS_PREDITAS)};
    settings.backgroundColor = profile.Get(option::COR_FUNDO);
    settings.textColor = profile.Get(option::COR_LETRAS);
    settings.predictionBackground = profile.Get(option::COR_FUNDO_TECLAS_PREDICAO);
    settings.fillType = profile.Get(option::TIPO_PREENCHIMENTO_TECLA);
    settings.gradientAngle = profile.Get(option::ANGULO_DEGRADE_TECLA);
    settings.gradientColor = profile.Get(option::COR_FUNDO2);
    settings.keyHeight = profile.Get(option::ALTURA_TECLAS);
    settings.imageHeight = profile.Get(option::ALTURA_TECLAS_IMAGENS);
    settings.sentenceKeyHeight = profile.Get(option::ALTURA_TECLAS_PREDICAO_FRASES);
    settings.sentencePictograms = profile.Get(option::NUMERO_MAXIMO_IMAGENS_FRASES_PREDITAS);
    settings.lineGap = profile.Get(option::ESPACO_ENTRE_LINHAS);
    settings.groupGap = profile.Get(option::ESPACO_ENTRE_GRUPOS);
    settings.keyGap = profile.Get(option::ESPACO_ENTRE_TECLAS);
    settings.stretchLines = profile.IsOn(option::AJUSTAR_COMPRIMENTO_LINHAS);
    settings.equalLineHeights = profile.IsOn(option::AJUSTAR_ALTURA_LINHAS);
    settings.hoverSpeechLimit = profile.Get(option::OUVIR_COM_RATO_SOBRE);
    settings.keySound = profile.IsOn(option::SOM_TECLAS);
    settings.dwellTime = access.DwellTime();
    settings.scanning = {MethodOf(profile.Get(option::METODO_VARRIMENTO)),
                         profile.Get(option::VELOCIDADE_VARRIMENTO),
                         profile.Get(option::LATENCIA_INTERRUPTORES_VARRIMENTO),
                         profile.Get(option::NUMERO_MAXIMO_CICLOS_VARRIMENTO)};
    return settings;
}

} // namespace ondrilo
