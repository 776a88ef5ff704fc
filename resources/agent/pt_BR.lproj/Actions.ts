<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>No window was closed</source>
        <translation>Nenhuma janela foi fechada</translation>
    </message>
    <message>
        <source>There is no window to close.</source>
        <translation>Não há nenhuma janela para fechar.</translation>
    </message>
    <message>
        <source>A window did not close</source>
        <translation>Uma janela não se fechou</translation>
    </message>
    <message>
        <source>“%1” is still open.</source>
        <translation>“%1” ainda está aberta.</translation>
    </message>
    <message>
        <source>“%1” asks something before it closes.</source>
        <translation>“%1” tem uma pergunta antes de se fechar.</translation>
    </message>
    <message>
        <source>A window cannot be asked to close</source>
        <translation>Não é possível pedir a uma janela que se feche</translation>
    </message>
    <message>
        <source>“%1” does not answer to being closed. Ending its program loses what it has not stored.</source>
        <translation>“%1” não responde ao pedido de fechamento. Se o programa for encerrado, o que não foi salvo será perdido.</translation>
    </message>
    <message>
        <source>End it</source>
        <translation>Encerrar</translation>
    </message>
    <message>
        <source>The settings did not open</source>
        <translation>As configurações não se abriram</translation>
    </message>
    <message>
        <source>The settings cannot be opened: %1.</source>
        <translation>Não foi possível abrir as configurações: %1.</translation>
    </message>
    <message>
        <source>the command lumaroo-settings is not installed</source>
        <translation>o comando lumaroo-settings não está instalado</translation>
    </message>
    <message>
        <source>%1 cannot be run</source>
        <translation>não é possível executar %1</translation>
    </message>
    <message>
        <source>No picture was taken</source>
        <translation>Nenhuma captura foi feita</translation>
    </message>
    <message>
        <source>There is no window to take a picture of.</source>
        <translation>Não há nenhuma janela para capturar.</translation>
    </message>
    <message>
        <source>“%1” is minimised, so it has no picture.</source>
        <translation>“%1” está minimizada e por isso não tem imagem.</translation>
    </message>
    <message>
        <source>“%1” is on another desktop, so it has no picture.</source>
        <translation>“%1” está em outra área de trabalho e por isso não tem imagem.</translation>
    </message>
    <message>
        <source>“%1” was closed before there was a picture of it.</source>
        <translation>“%1” foi fechada antes que houvesse uma imagem dela.</translation>
    </message>
    <message>
        <source>This X server gives no pictures of windows.</source>
        <translation>Este servidor X não fornece imagens de janelas.</translation>
    </message>
    <message>
        <source>The disk is full, so the picture was not stored.</source>
        <translation>O disco está cheio; a imagem não foi salva.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to, so the picture was not stored.</source>
        <translation>Não é possível gravar na pasta %1; a imagem não foi salva.</translation>
    </message>
    <message>
        <source>The picture was not stored: %1.</source>
        <translation>A imagem não foi salva: %1.</translation>
    </message>
    <message>
        <source>what stores it did not end well</source>
        <translation>o programa que salva a imagem não terminou corretamente</translation>
    </message>
    <message>
        <source>Picture of “%1” taken</source>
        <translation>Captura de “%1” feita</translation>
    </message>
    <message>
        <source>It is stored as “%1” in %2.</source>
        <translation>Foi salva como “%1” em %2.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>No preview is shown</source>
        <translation>Nenhuma prévia é mostrada</translation>
    </message>
    <message>
        <source>Another program has the keyboard and the mouse, as one that locks the screen.</source>
        <translation>Outro programa ocupa o teclado e o mouse, por exemplo um que bloqueia a tela.</translation>
    </message>
    <message>
        <source>There is no window to show.</source>
        <translation>Não há nenhuma janela para mostrar.</translation>
    </message>
    <message>
        <source>A window may still be open</source>
        <translation>Uma janela talvez ainda esteja aberta</translation>
    </message>
    <message>
        <source>The windows cannot be seen any more, so it is not known whether “%1” has closed.</source>
        <translation>O Lumaroo não vê mais as janelas e por isso não se sabe se “%1” foi fechada.</translation>
    </message>
    <message>
        <source>Untitled window</source>
        <translation>Janela sem título</translation>
    </message>
</context>
</TS>
