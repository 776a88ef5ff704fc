<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Settings</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Buscar en la configuración</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Toda la configuración</translation>
    </message>
    <message>
        <source>&amp;All settings</source>
        <translation>Toda la con&amp;figuración</translation>
    </message>
    <message>
        <source>No settings are installed.</source>
        <translation>No hay ninguna configuración instalada.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.</source>
        <translation>Nada coincide con «%1».</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>No se puede mostrar «%1»</translation>
    </message>
    <message>
        <source>No settings of this name are installed. Install them, then try again.</source>
        <translation>No hay instalada ninguna configuración con ese nombre. Instálela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>It is not there any more. Install it again.</source>
        <translation>Este módulo ya no existe. Vuelva a instalarlo.</translation>
    </message>
    <message>
        <source>It is damaged. Install it again.</source>
        <translation>Este módulo está dañado. Vuelva a instalarlo.</translation>
    </message>
    <message>
        <source>It was made for another kind of computer. Install the version for this one.</source>
        <translation>Este módulo se hizo para otro tipo de equipo. Instale la versión para este.</translation>
    </message>
    <message>
        <source>It needs a newer version of this application. Update Lumaroo.</source>
        <translation>Este módulo necesita una versión más reciente de esta aplicación. Actualice Lumaroo.</translation>
    </message>
    <message>
        <source>It contains no settings. Install it again.</source>
        <translation>Este módulo no contiene ninguna configuración. Vuelva a instalarlo.</translation>
    </message>
    <message>
        <source>It could not start. The system log may say why.</source>
        <translation>Este módulo no se ha podido iniciar. Puede que el registro del sistema indique por qué.</translation>
    </message>
    <message>
        <source>Its window content could not be loaded. Install it again.</source>
        <translation>No se ha podido cargar el contenido de la ventana. Vuelva a instalar este módulo.</translation>
    </message>
</context>
</TS>
