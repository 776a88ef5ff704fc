<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Notices</name>
    <message>
        <source>Windows cannot be selected here</source>
        <translation>Não é possível selecionar janelas aqui</translation>
    </message>
    <message>
        <source>Another program keeps the keyboard</source>
        <translation>Outro programa retém o teclado</translation>
    </message>
    <message>
        <source>Until it lets go, Lumaroo's keys work with the modifier keys held.</source>
        <translation>Até que ele o libere, as teclas do Lumaroo funcionam com as teclas modificadoras mantidas pressionadas.</translation>
    </message>
    <message>
        <source>A window did not come to the front</source>
        <translation>Uma janela não veio para a frente</translation>
    </message>
    <message>
        <source>The window manager did not turn to it.</source>
        <translation>O gerenciador de janelas não passou para ela.</translation>
    </message>
    <message>
        <source>The window manager did not turn to “%1”.</source>
        <translation>O gerenciador de janelas não passou para “%1”.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Outro programa ocupa teclas do Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo does not get %1.</source>
        <translation>O Lumaroo não recebe %1.</translation>
    </message>
    <message>
        <source>With %1 held instead, all movement keys are free.</source>
        <translation>Com %1, todas as teclas de movimento estão livres.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>The tutorial cannot be started</source>
        <translation>Não foi possível iniciar o tutorial</translation>
    </message>
    <message>
        <source>A part of Lumaroo is missing. Install it again.</source>
        <translation>Falta uma parte do Lumaroo. Instale-o novamente.</translation>
    </message>
    <message>
        <source>Hold %1 and press %2</source>
        <translation>Segure %1 e pressione %2</translation>
    </message>
    <message>
        <source>Press %1 twice, then press %2</source>
        <translation>Pressione %1 duas vezes e depois %2</translation>
    </message>
    <message>
        <source>Lumaroo is on</source>
        <translation>O Lumaroo está ligado</translation>
    </message>
    <message>
        <source>Its keys do not work yet. The settings tell why.</source>
        <translation>Suas teclas ainda não funcionam. As configurações dizem por quê.</translation>
    </message>
    <message>
        <source>Show me</source>
        <translation>Mostrar o tutorial</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>There is no X server.</source>
        <translation>Não há nenhum servidor X.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <translation>O servidor X não está mais disponível.</translation>
    </message>
    <message>
        <source>A Wayland session does not let programs see other programs' windows. Lumaroo works in an X11 session.</source>
        <translation>Uma sessão Wayland não deixa que os programas vejam as janelas de outros. O Lumaroo funciona em uma sessão X11.</translation>
    </message>
    <message>
        <source>No window manager runs that tells which windows there are.</source>
        <translation>Não há em execução nenhum gerenciador de janelas que diga quais janelas existem.</translation>
    </message>
    <message>
        <source>The window manager does not tell which windows there are.</source>
        <translation>O gerenciador de janelas não diz quais janelas existem.</translation>
    </message>
    <message>
        <source>“%1” has been closed.</source>
        <translation>“%1” foi fechada.</translation>
    </message>
    <message>
        <source>It has been closed.</source>
        <translation>Ela foi fechada.</translation>
    </message>
    <message>
        <source>The modifier keys stay as they are</source>
        <translation>As teclas modificadoras continuam como estão</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Não foi possível salvar sua escolha. O disco talvez esteja cheio.</translation>
    </message>
</context>
</TS>
