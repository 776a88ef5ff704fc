<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Pesquisar configurações</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Todas as configurações</translation>
    </message>
    <message>
        <source>&amp;All settings</source>
        <translation>Tod&amp;as as configurações</translation>
    </message>
    <message>
        <source>No settings are installed.</source>
        <translation>Nenhuma configuração está instalada.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nada corresponde a “%1”.</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>Não é possível mostrar “%1”</translation>
    </message>
    <message>
        <source>No settings of this name are installed. Install them, then try again.</source>
        <translation>Não há configurações instaladas com esse nome. Instale-as e tente novamente.</translation>
    </message>
    <message>
        <source>It is not there any more. Install it again.</source>
        <translation>O painel não está mais disponível. Instale-o novamente.</translation>
    </message>
    <message>
        <source>It is damaged. Install it again.</source>
        <translation>O painel está danificado. Instale-o novamente.</translation>
    </message>
    <message>
        <source>It was made for another kind of computer. Install the version for this one.</source>
        <translation>O painel foi feito para outro tipo de computador. Instale a versão para este.</translation>
    </message>
    <message>
        <source>It needs a newer version of this application. Update Lumaroo.</source>
        <translation>O painel precisa de uma versão mais recente deste aplicativo. Atualize o Lumaroo.</translation>
    </message>
    <message>
        <source>It contains no settings. Install it again.</source>
        <translation>O painel não contém nenhuma configuração. Instale-o novamente.</translation>
    </message>
    <message>
        <source>It could not start. The system log may say why.</source>
        <translation>Não foi possível iniciar o painel. O registro do sistema talvez diga por quê.</translation>
    </message>
    <message>
        <source>Its window content could not be loaded. Install it again.</source>
        <translation>Não foi possível carregar o conteúdo da janela. Instale o painel novamente.</translation>
    </message>
</context>
</TS>
