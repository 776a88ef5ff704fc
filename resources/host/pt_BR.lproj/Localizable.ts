<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Shift+Tab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>%1, %2 % opaque</source>
        <translation>%1, %2 % de opacidade</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Do not show this message again</source>
        <translation>&amp;Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>O servidor não responde. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The address of the server cannot be used.</source>
        <translation>O endereço do servidor não pode ser usado.</translation>
    </message>
    <message>
        <source>The server cannot be found. Please make sure you are connected to the Internet.</source>
        <translation>O servidor não foi encontrado. Verifique se você está conectado à Internet.</translation>
    </message>
    <message>
        <source>The server takes no connection. Please try again later.</source>
        <translation>O servidor não aceita conexões. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Please try again.</source>
        <translation>A conexão com o servidor foi perdida. Tente novamente.</translation>
    </message>
    <message>
        <source>The server leads from one address to the next without end. Please try again later.</source>
        <translation>O servidor redireciona sem fim de um endereço a outro. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made, so nothing was sent.</source>
        <translation>Não foi possível estabelecer uma conexão segura com o servidor; por isso, nada foi enviado.</translation>
    </message>
    <message>
        <source>The network does not work as it should. Please try again later.</source>
        <translation>A rede não está funcionando como deveria. Tente novamente mais tarde.</translation>
    </message>
</context>
</TS>
