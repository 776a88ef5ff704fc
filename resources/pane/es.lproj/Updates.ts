<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Updates</name>
    <message>
        <source>Lumaroo update</source>
        <translation>Actualización de Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for updates now</source>
        <translation>Lumaroo no puede buscar actualizaciones ahora</translation>
    </message>
    <message>
        <source>A part of it is missing, or was just replaced by another version. Close the settings, open them again and try once more. If that does not help, install Lumaroo again.</source>
        <translation>Falta una parte, o acaba de ser sustituida por otra versión. Cierre la configuración, ábrala de nuevo y vuelva a intentarlo. Si eso no ayuda, instale Lumaroo de nuevo.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>&amp;Omitir esta versión</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>&amp;Install update</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>&amp;Install and restart</source>
        <translation>&amp;Instalar y reiniciar</translation>
    </message>
    <message>
        <source>&amp;Open its web page</source>
        <translation>A&amp;brir la página web</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>Looking for a new version</source>
        <translation>Buscando una nueva versión</translation>
    </message>
    <message>
        <source>Lumaroo is up to date</source>
        <translation>Lumaroo está actualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>La versión %1 es la más reciente.</translation>
    </message>
    <message>
        <source>There is an important update: Lumaroo %1</source>
        <translation>Hay una actualización importante: Lumaroo %1</translation>
    </message>
    <message>
        <source>There is a new version: Lumaroo %1</source>
        <translation>Hay una nueva versión: Lumaroo %1</translation>
    </message>
    <message>
        <source>It mends something that matters: install it soon.</source>
        <translation>Corrige algo importante: conviene instalarla pronto.</translation>
    </message>
    <message>
        <source>It can be downloaded and installed now.</source>
        <translation>Ya se puede descargar e instalar.</translation>
    </message>
    <message>
        <source>It is not installed from here. Its web page tells how to get it.</source>
        <translation>No se instala desde aquí. Su página web indica cómo obtenerla.</translation>
    </message>
    <message>
        <source>Downloading Lumaroo %1</source>
        <translation>Descargando Lumaroo %1</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Esperando al servidor</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Preparing Lumaroo %1</source>
        <translation>Preparando Lumaroo %1</translation>
    </message>
    <message>
        <source>Checking that it is genuine, and unpacking it</source>
        <translation>Comprobando que es auténtica y desempaquetándola</translation>
    </message>
    <message>
        <source>Lumaroo %1 is ready</source>
        <translation>Lumaroo %1 está listo</translation>
    </message>
    <message>
        <source>The settings close for a moment and come back with the new version. If you choose Later, it is installed when you close the settings.</source>
        <translation>La configuración se cierra un momento y vuelve con la nueva versión. Si elige «Más tarde», se instalará al cerrar la configuración.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is about to be installed</source>
        <translation>Lumaroo %1 está a punto de instalarse</translation>
    </message>
    <message>
        <source>It is installed as soon as the settings are closed. Answer what they still ask, or close them yourself.</source>
        <translation>Se instalará en cuanto se cierre la configuración. Responda a lo que aún pregunte o ciérrela.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is installed</source>
        <translation>Lumaroo %1 está instalado</translation>
    </message>
    <message>
        <source>Close the settings and open them again to use it.</source>
        <translation>Cierre la configuración y ábrala de nuevo para utilizarlo.</translation>
    </message>
    <message>
        <source>The release notes cannot be shown now.</source>
        <translation>Las notas de la versión no se pueden mostrar ahora.</translation>
    </message>
    <message>
        <source>New versions cannot be looked for now</source>
        <translation>No se pueden buscar nuevas versiones ahora</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached, or cannot be read. Check your connection and try again later.</source>
        <translation>La lista de versiones no está accesible o no se puede leer. Compruebe la conexión e inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update cannot be downloaded</source>
        <translation>No se puede descargar la actualización</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Check your connection and try again.</source>
        <translation>La versión actual no ha cambiado. Compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update cannot be stored</source>
        <translation>No se puede guardar la actualización</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Most often the disk is full: make some room and try again.</source>
        <translation>La versión actual no ha cambiado. Casi siempre se debe a que el disco está lleno: libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself</source>
        <translation>Esta copia de Lumaroo no puede actualizarse sola</translation>
    </message>
    <message>
        <source>Whoever built it gave it no key to tell genuine updates by. Get new versions from where you got this one.</source>
        <translation>Se compiló sin la clave que permite reconocer las actualizaciones auténticas. Las nuevas versiones se obtienen de donde se obtuvo esta.</translation>
    </message>
    <message>
        <source>The update is not genuine</source>
        <translation>La actualización no es auténtica</translation>
    </message>
    <message>
        <source>What came is not what the makers of Lumaroo have signed. It was removed, and the version that you have is unchanged. Try again later, best through another network.</source>
        <translation>Lo recibido no está firmado por los desarrolladores de Lumaroo. Se ha eliminado y la versión actual no ha cambiado. Inténtelo de nuevo más tarde, mejor desde otra red.</translation>
    </message>
    <message>
        <source>The update is damaged</source>
        <translation>La actualización está dañada</translation>
    </message>
    <message>
        <source>What came cannot be unpacked. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Lo recibido no se puede desempaquetar. Se ha eliminado y la versión actual no ha cambiado. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update is not what was announced</source>
        <translation>La actualización no es la que se anunció</translation>
    </message>
    <message>
        <source>It does not hold the version that the list of versions tells of. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>No contiene la versión que indica la lista de versiones. Se ha eliminado y la versión actual no ha cambiado. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Lumaroo is updated along with your system</source>
        <translation>Lumaroo se actualiza junto con el sistema</translation>
    </message>
    <message>
        <source>It was installed for everybody who uses this computer. Look for new versions where your system gets its programs and updates.</source>
        <translation>Se instaló para todos los que usan este equipo. Las nuevas versiones se encuentran donde el sistema obtiene sus programas y actualizaciones.</translation>
    </message>
    <message>
        <source>Updates are not installed as root</source>
        <translation>Las actualizaciones no se instalan como root</translation>
    </message>
    <message>
        <source>Open the settings under your own name and try again.</source>
        <translation>Abra la configuración con su propio usuario e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Lumaroo is being updated already</source>
        <translation>Lumaroo ya se está actualizando</translation>
    </message>
    <message>
        <source>Another program is about to do it. Wait a moment and try again.</source>
        <translation>Otro programa está en ello. Espere un momento e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update cannot take the old version's place</source>
        <translation>La actualización no puede ocupar el lugar de la versión anterior</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Close the settings, open them again and try once more.</source>
        <translation>La versión actual no ha cambiado. Cierre la configuración, ábrala de nuevo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The update was not installed</source>
        <translation>La actualización no se ha instalado</translation>
    </message>
    <message>
        <source>The version that you have is unchanged.</source>
        <translation>La versión actual no ha cambiado.</translation>
    </message>
    <message>
        <source>⚠ Version %1 was not installed.</source>
        <translation>⚠ La versión %1 no se ha instalado.</translation>
    </message>
    <message>
        <source>Most often the disk is full: make some room. It is tried again when you close the settings and when you open them.</source>
        <translation>Casi siempre se debe a que el disco está lleno: libere espacio. Se vuelve a intentar al cerrar y al abrir la configuración.</translation>
    </message>
    <message>
        <source>Another program was updating Lumaroo just then. It is tried again when you close the settings and when you open them.</source>
        <translation>Otro programa estaba actualizando Lumaroo en ese momento. Se vuelve a intentar al cerrar y al abrir la configuración.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer. New versions come with the updates of the system.</source>
        <translation>Lumaroo se instaló para todos los que usan este equipo. Las nuevas versiones llegan con las actualizaciones del sistema.</translation>
    </message>
    <message>
        <source>Updates are not installed as root: open the settings under your own name.</source>
        <translation>Las actualizaciones no se instalan como root: abra la configuración con su propio usuario.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo has no key to tell genuine updates by, so that the update was removed. Get new versions from where you got this one.</source>
        <translation>Esta copia de Lumaroo no tiene la clave que permite reconocer las actualizaciones auténticas, así que la actualización se ha eliminado. Las nuevas versiones se obtienen de donde se obtuvo esta.</translation>
    </message>
    <message>
        <source>It was not what the makers of Lumaroo have signed, and was removed. Check again, best through another network.</source>
        <translation>Lo recibido no estaba firmado por los desarrolladores de Lumaroo y se ha eliminado. Busque de nuevo, mejor desde otra red.</translation>
    </message>
    <message>
        <source>What had been downloaded was damaged or gone. Check again to have it downloaded once more.</source>
        <translation>Lo descargado estaba dañado o ya no existe. Busque de nuevo para volver a descargarlo.</translation>
    </message>
    <message>
        <source>It did not hold the version that was announced, and was removed. Check again later.</source>
        <translation>No contenía la versión anunciada y se ha eliminado. Busque de nuevo más tarde.</translation>
    </message>
    <message>
        <source>It could not take the old version's place. It is tried again when you close the settings and when you open them.</source>
        <translation>No ha podido ocupar el lugar de la versión anterior. Se vuelve a intentar al cerrar y al abrir la configuración.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself. Get new versions from where you got this one.</source>
        <translation>Esta copia de Lumaroo no puede actualizarse sola. Las nuevas versiones se obtienen de donde se obtuvo esta.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer: updates come with the system's updates.</source>
        <translation>Lumaroo se instaló para todos los que usan este equipo: las nuevas versiones llegan con las actualizaciones del sistema.</translation>
    </message>
    <message>
        <source>Nothing is looked for as root: open the settings under your own name.</source>
        <translation>Como root no se busca nada: abra la configuración con su propio usuario.</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for new versions.</source>
        <translation>Lumaroo no puede buscar nuevas versiones.</translation>
    </message>
    <message>
        <source>It is not installed from here. Get it from where you got the version that you have.</source>
        <translation>No se instala desde aquí. Se obtiene de donde se obtuvo la versión actual.</translation>
    </message>
    <message>
        <source>The web page cannot be opened from here. Its address is: %1</source>
        <translation>La página web no se puede abrir desde aquí. Su dirección es: %1</translation>
    </message>
</context>
</TS>
