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
    <message>
        <source>Your changes are not saved</source>
        <translation>Suas alterações não estão salvas</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>Não é possível ler suas configurações</translation>
    </message>
    <message>
        <source>Your changes may not last</source>
        <translation>Suas alterações podem se perder</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it, then try again.</source>
        <translation>O disco está cheio. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” can only be read at the moment.</source>
        <translation>O disco com a pasta “%1” está somente para leitura no momento.</translation>
    </message>
    <message>
        <source>You lack the permission to read the file “%1”.</source>
        <translation>Você não tem permissão para ler o arquivo “%1”.</translation>
    </message>
    <message>
        <source>You lack the permission to write in the folder “%1”.</source>
        <translation>Você não tem permissão para gravar na pasta “%1”.</translation>
    </message>
    <message>
        <source>Another program does not let go of the file “%1”.</source>
        <translation>Outro programa não libera o arquivo “%1”.</translation>
    </message>
    <message>
        <source>The file “%1” would become too large.</source>
        <translation>O arquivo “%1” ficaria grande demais.</translation>
    </message>
    <message>
        <source>The file “%1” makes trouble (%2).</source>
        <translation>Há um problema com o arquivo “%1” (%2).</translation>
    </message>
    <message>
        <source>What you see here is not what is stored.</source>
        <translation>O que você vê aqui não é o que está salvo.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>A settings file was damaged</source>
        <translation>Um arquivo de configurações estava danificado</translation>
    </message>
    <message>
        <source>It is kept as “%1”. The settings in it began anew with their defaults.</source>
        <translation>Ele foi guardado como “%1”. As configurações que continha voltaram aos valores padrão.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ocultar</translation>
    </message>
</context>
</TS>
