<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retorno</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Mayús+Tab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>%1, %2 % opaque</source>
        <translation>%1, opaco al %2 %</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Do not show this message again</source>
        <translation>&amp;No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>El servidor no responde. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The address of the server cannot be used.</source>
        <translation>La dirección del servidor no se puede utilizar.</translation>
    </message>
    <message>
        <source>The server cannot be found. Please make sure you are connected to the Internet.</source>
        <translation>No se encuentra el servidor. Compruebe que está conectado a Internet.</translation>
    </message>
    <message>
        <source>The server takes no connection. Please try again later.</source>
        <translation>El servidor no acepta la conexión. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Please try again.</source>
        <translation>Se ha perdido la conexión con el servidor. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The server leads from one address to the next without end. Please try again later.</source>
        <translation>El servidor redirige sin fin de una dirección a otra. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>No secure connection to the server could be made, so nothing was sent.</source>
        <translation>No se ha podido establecer una conexión segura con el servidor, así que no se ha enviado nada.</translation>
    </message>
    <message>
        <source>The network does not work as it should. Please try again later.</source>
        <translation>La red no funciona como debería. Inténtelo de nuevo más tarde.</translation>
    </message>
</context>
</TS>
