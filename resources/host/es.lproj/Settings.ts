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
    <message>
        <source>Your changes are not saved</source>
        <translation>Los cambios no están guardados</translation>
    </message>
    <message>
        <source>Your settings cannot be read</source>
        <translation>No se puede leer la configuración</translation>
    </message>
    <message>
        <source>Your changes may not last</source>
        <translation>Los cambios podrían perderse</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it, then try again.</source>
        <translation>El disco está lleno. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” can only be read at the moment.</source>
        <translation>El disco que contiene la carpeta «%1» es de solo lectura en este momento.</translation>
    </message>
    <message>
        <source>You lack the permission to read the file “%1”.</source>
        <translation>Falta el permiso para leer el archivo «%1».</translation>
    </message>
    <message>
        <source>You lack the permission to write in the folder “%1”.</source>
        <translation>Falta el permiso para escribir en la carpeta «%1».</translation>
    </message>
    <message>
        <source>Another program does not let go of the file “%1”.</source>
        <translation>Otro programa no suelta el archivo «%1».</translation>
    </message>
    <message>
        <source>The file “%1” would become too large.</source>
        <translation>El archivo «%1» sería demasiado grande.</translation>
    </message>
    <message>
        <source>The file “%1” makes trouble (%2).</source>
        <translation>Hay un problema con el archivo «%1» (%2).</translation>
    </message>
    <message>
        <source>What you see here is not what is stored.</source>
        <translation>Lo que se ve aquí no es lo que está guardado.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>A settings file was damaged</source>
        <translation>Un archivo de configuración estaba dañado</translation>
    </message>
    <message>
        <source>It is kept as “%1”. The settings in it began anew with their defaults.</source>
        <translation>Se conserva como «%1». Los ajustes que contenía han vuelto a sus valores predeterminados.</translation>
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
