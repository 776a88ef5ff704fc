<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>The system’s updates bring new versions of this copy.</source>
        <translation>Las nuevas versiones de esta copia llegan con las actualizaciones del sistema.</translation>
    </message>
    <message>
        <source>Press:</source>
        <translation>Pulse:</translation>
    </message>
    <message>
        <source>Hold %1 and press:</source>
        <translation>Mantenga pulsado %1 y pulse:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>%1 por segundo</translation>
    </message>
    <message>
        <source>Lumaroo Enabled</source>
        <translation>Lumaroo está activado</translation>
    </message>
    <message>
        <source>Lumaroo Disabled</source>
        <translation>Lumaroo está desactivado</translation>
    </message>
    <message>
        <source>Version %@ (%@)</source>
        <translation>Versión %@ (%@)</translation>
    </message>
    <message>
        <source>Quit while key conflicts exist?</source>
        <translation>¿Salir aunque haya conflictos de teclas?</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Quitting may cause unpredictable Lumaroo behavior.</source>
        <translation>Las teclas marcadas tienen asignadas varias acciones. Si sale ahora, Lumaroo puede comportarse de forma imprevisible.</translation>
    </message>
    <message>
        <source>This key cannot be used. Press a letter, a digit, a sign, an arrow or a key of the number pad.</source>
        <translation>Esta tecla no se puede utilizar. Pulse una letra, una cifra, un signo, una flecha o una tecla del teclado numérico.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%@ is already in use.</source>
        <translation>%@ ya está en uso.</translation>
    </message>
    <message>
        <source>Lumaroo already has an action associated with %@. Please choose another key.</source>
        <translation>Lumaroo ya tiene una acción asociada a %@. Elija otra tecla.</translation>
    </message>
    <message>
        <source>There are conflicts with the marked keys.</source>
        <translation>Hay conflictos con las teclas marcadas.</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.</source>
        <translation>Las teclas marcadas tienen asignadas varias acciones. Cámbielas para eliminar los conflictos.</translation>
    </message>
    <message>
        <source>Please change the marked HotKeys in the programs using them before setting them in Lumaroo.</source>
        <translation>Cambie las teclas marcadas en los programas que las utilizan antes de establecerlas en Lumaroo.</translation>
    </message>
    <message>
        <source>At least one modifier must be set</source>
        <translation>Debe elegirse al menos una tecla modificadora</translation>
    </message>
    <message>
        <source>At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this one.</source>
        <translation>Lumaroo solo se activa con al menos una tecla modificadora. Elija otra tecla modificadora antes de desmarcar esta.</translation>
    </message>
    <message>
        <source>The web page is unavailable</source>
        <translation>La página web no está disponible</translation>
    </message>
    <message>
        <source>Please make sure you are connected to the Internet and try again later.</source>
        <translation>Compruebe que está conectado a Internet e inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Hold %1 and press %2</source>
        <translation>Mantenga pulsado %1 y pulse %2</translation>
    </message>
    <message>
        <source>Press %1 twice, then press %2</source>
        <translation>Pulse %1 dos veces y después %2</translation>
    </message>
    <message>
        <source>Lumaroo is off for now. The menu of its icon in the panel turns it on again.</source>
        <translation>Lumaroo está desactivado por ahora. El menú de su icono en el panel vuelve a activarlo.</translation>
    </message>
    <message>
        <source>Turn &amp;Lumaroo on with this switch.</source>
        <translation>Active &amp;Lumaroo con este interruptor.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo funciona en segundo plano. Sigue activado al cerrar esta ventana.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch.</source>
        <translation>&amp;Lumaroo ha terminado por sí solo: falló o se detuvo. Vuelva a activarlo con este interruptor.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo could not be started. Install it again, then turn it on with this switch.</source>
        <translation>&amp;Lumaroo no se ha podido iniciar. Vuelva a instalarlo y actívelo con este interruptor.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo was removed from this computer. Install it again to turn it on.</source>
        <translation>&amp;Lumaroo se ha eliminado de este equipo. Vuelva a instalarlo para activarlo.</translation>
    </message>
    <message>
        <source>All keys work.</source>
        <translation>Todas las teclas funcionan.</translation>
    </message>
    <message>
        <source>Some keys do not work, since other programs use them. The page “Keys” names them.</source>
        <translation>Algunas teclas no funcionan porque las usan otros programas. La página «Teclas» indica cuáles.</translation>
    </message>
    <message>
        <source>Some keys do not work. The page “Keys” shows all of them.</source>
        <translation>Algunas teclas no funcionan. La página «Teclas» las muestra todas.</translation>
    </message>
    <message>
        <source>No key works, since no modifier keys are chosen.</source>
        <translation>Ninguna tecla funciona porque no se ha elegido ninguna tecla modificadora.</translation>
    </message>
    <message>
        <source>Lumaroo takes no key from other programs.</source>
        <translation>Lumaroo no quita ninguna tecla a otros programas.</translation>
    </message>
    <message>
        <source>This session has no hot keys for programs. Lumaroo needs an X11 session.</source>
        <translation>Esta sesión no permite que los programas tengan sus propias teclas. Lumaroo necesita una sesión X11.</translation>
    </message>
    <message>
        <source>This session runs on Wayland. There no program may take keys or see the windows of others, so Lumaroo’s keys do nothing here. Your settings are kept. To use Lumaroo, log out and choose “X11” or “Xorg” on the login screen.</source>
        <translation>Esta sesión funciona con Wayland. En ella ningún programa puede tomar teclas ni ver las ventanas de otros, por lo que las teclas de Lumaroo no hacen nada aquí. La configuración se conserva. Para usar Lumaroo, cierre la sesión y elija «X11» o «Xorg» en la pantalla de inicio de sesión.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Lumaroo cannot take it.</source>
        <translation>Otro programa usa %1. Lumaroo no puede obtener esa tecla.</translation>
    </message>
    <message>
        <source>%1 are used by other programs. Lumaroo cannot take them.</source>
        <translation>Otros programas usan %1. Lumaroo no puede obtener esas teclas.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Usar %1 en su lugar</translation>
    </message>
    <message>
        <source>Another program uses this key with the modifier keys.</source>
        <translation>Otro programa usa esta tecla con las teclas modificadoras.</translation>
    </message>
    <message>
        <source>The start at login could not be changed.</source>
        <translation>No se ha podido cambiar el inicio automático al iniciar sesión.</translation>
    </message>
    <message>
        <source>Lumaroo cannot write the file “%1”. Check that you may change it, and try again.</source>
        <translation>Lumaroo no puede escribir el archivo «%1». Compruebe que tiene permiso para cambiarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Some keys do not work, since Shift alone would take the capital letters you type.</source>
        <translation>Algunas teclas no funcionan porque Mayús por sí sola se llevaría las mayúsculas que se escriben.</translation>
    </message>
    <message>
        <source>Choose one at least: without a modifier key, no key works.</source>
        <translation>Elija al menos una: sin tecla modificadora no funciona ninguna tecla.</translation>
    </message>
    <message>
        <source>Shift alone would take the capital letters you type. Choose another modifier key with it.</source>
        <translation>Mayús por sí sola se llevaría las mayúsculas que se escriben. Elija además otra tecla modificadora.</translation>
    </message>
    <message>
        <source>Restore this key</source>
        <translation>Restablecer esta tecla</translation>
    </message>
    <message>
        <source>%1 is used for “%2”.</source>
        <translation>%1 ya se usa para «%2».</translation>
    </message>
    <message>
        <source>%1 is used for “%2”. Change that key first.</source>
        <translation>%1 ya se usa para «%2». Cambie primero esa tecla.</translation>
    </message>
    <message>
        <source>The key for “%1” is restored.</source>
        <translation>La tecla de «%1» se ha restablecido.</translation>
    </message>
    <message>
        <source>You pressed %1: %2.</source>
        <translation>Ha pulsado %1: %2.</translation>
    </message>
    <message>
        <source>All keys are restored.</source>
        <translation>Se han restablecido todas las teclas.</translation>
    </message>
    <message>
        <source>The keys are as they were before.</source>
        <translation>Las teclas vuelven a estar como antes.</translation>
    </message>
</context>
</TS>
