<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Notices</name>
    <message>
        <source>Windows cannot be selected here</source>
        <translation>Aquí no se pueden seleccionar ventanas</translation>
    </message>
    <message>
        <source>Another program keeps the keyboard</source>
        <translation>Otro programa retiene el teclado</translation>
    </message>
    <message>
        <source>Until it lets go, Lumaroo's keys work with the modifier keys held.</source>
        <translation>Hasta que lo suelte, las teclas de Lumaroo funcionan manteniendo pulsadas las teclas modificadoras.</translation>
    </message>
    <message>
        <source>A window did not come to the front</source>
        <translation>Una ventana no ha pasado al frente</translation>
    </message>
    <message>
        <source>The window manager did not turn to it.</source>
        <translation>El gestor de ventanas no la ha activado.</translation>
    </message>
    <message>
        <source>The window manager did not turn to “%1”.</source>
        <translation>El gestor de ventanas no ha activado «%1».</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Otro programa ocupa teclas de Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo does not get %1.</source>
        <translation>Lumaroo no recibe %1.</translation>
    </message>
    <message>
        <source>With %1 held instead, all movement keys are free.</source>
        <translation>Si se mantiene pulsado %1 en su lugar, todas las teclas de movimiento están libres.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>The tutorial cannot be started</source>
        <translation>No se puede iniciar el tutorial</translation>
    </message>
    <message>
        <source>A part of Lumaroo is missing. Install it again.</source>
        <translation>Falta una parte de Lumaroo. Vuelva a instalarlo.</translation>
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
        <source>Lumaroo is on</source>
        <translation>Lumaroo está activado</translation>
    </message>
    <message>
        <source>Its keys do not work yet. The settings tell why.</source>
        <translation>Sus teclas aún no funcionan. La configuración indica por qué.</translation>
    </message>
    <message>
        <source>Show me</source>
        <translation>Ver el tutorial</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>There is no X server.</source>
        <translation>No hay ningún servidor X.</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <translation>El servidor X ya no está.</translation>
    </message>
    <message>
        <source>A Wayland session does not let programs see other programs' windows. Lumaroo works in an X11 session.</source>
        <translation>Una sesión Wayland no deja que los programas vean las ventanas de otros. Lumaroo funciona en una sesión X11.</translation>
    </message>
    <message>
        <source>No window manager runs that tells which windows there are.</source>
        <translation>No hay en marcha ningún gestor de ventanas que indique qué ventanas hay.</translation>
    </message>
    <message>
        <source>The window manager does not tell which windows there are.</source>
        <translation>El gestor de ventanas no indica qué ventanas hay.</translation>
    </message>
    <message>
        <source>“%1” has been closed.</source>
        <translation>La ventana «%1» se ha cerrado.</translation>
    </message>
    <message>
        <source>It has been closed.</source>
        <translation>Se ha cerrado.</translation>
    </message>
    <message>
        <source>The modifier keys stay as they are</source>
        <translation>Las teclas modificadoras siguen igual</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>No se ha podido guardar la elección. Puede que el disco esté lleno.</translation>
    </message>
</context>
</TS>
