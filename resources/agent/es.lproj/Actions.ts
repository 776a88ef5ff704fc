<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>No window was closed</source>
        <translation>No se ha cerrado ninguna ventana</translation>
    </message>
    <message>
        <source>There is no window to close.</source>
        <translation>No hay ninguna ventana que cerrar.</translation>
    </message>
    <message>
        <source>A window did not close</source>
        <translation>Una ventana no se ha cerrado</translation>
    </message>
    <message>
        <source>“%1” is still open.</source>
        <translation>La ventana «%1» sigue abierta.</translation>
    </message>
    <message>
        <source>“%1” asks something before it closes.</source>
        <translation>La ventana «%1» pregunta algo antes de cerrarse.</translation>
    </message>
    <message>
        <source>A window cannot be asked to close</source>
        <translation>No se puede pedir a una ventana que se cierre</translation>
    </message>
    <message>
        <source>“%1” does not answer to being closed. Ending its program loses what it has not stored.</source>
        <translation>La ventana «%1» no responde a la orden de cierre. Si se fuerza la salida de su programa, se perderá lo que no haya guardado.</translation>
    </message>
    <message>
        <source>End it</source>
        <translation>Forzar la salida</translation>
    </message>
    <message>
        <source>The settings did not open</source>
        <translation>La configuración no se ha abierto</translation>
    </message>
    <message>
        <source>The settings cannot be opened: %1.</source>
        <translation>No se puede abrir la configuración: %1.</translation>
    </message>
    <message>
        <source>the command lumaroo-settings is not installed</source>
        <translation>la orden lumaroo-settings no está instalada</translation>
    </message>
    <message>
        <source>%1 cannot be run</source>
        <translation>no se puede ejecutar %1</translation>
    </message>
    <message>
        <source>No picture was taken</source>
        <translation>No se ha hecho ninguna captura</translation>
    </message>
    <message>
        <source>There is no window to take a picture of.</source>
        <translation>No hay ninguna ventana que capturar.</translation>
    </message>
    <message>
        <source>“%1” is minimised, so it has no picture.</source>
        <translation>La ventana «%1» está minimizada y por eso no se puede capturar.</translation>
    </message>
    <message>
        <source>“%1” is on another desktop, so it has no picture.</source>
        <translation>La ventana «%1» está en otro escritorio y por eso no se puede capturar.</translation>
    </message>
    <message>
        <source>“%1” was closed before there was a picture of it.</source>
        <translation>La ventana «%1» se cerró antes de poder capturarla.</translation>
    </message>
    <message>
        <source>This X server gives no pictures of windows.</source>
        <translation>Este servidor X no proporciona imágenes de las ventanas.</translation>
    </message>
    <message>
        <source>The disk is full, so the picture was not stored.</source>
        <translation>El disco está lleno; la captura no se ha guardado.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to, so the picture was not stored.</source>
        <translation>No se puede escribir en la carpeta %1; la captura no se ha guardado.</translation>
    </message>
    <message>
        <source>The picture was not stored: %1.</source>
        <translation>La captura no se ha guardado: %1.</translation>
    </message>
    <message>
        <source>what stores it did not end well</source>
        <translation>el programa que la guarda no terminó correctamente</translation>
    </message>
    <message>
        <source>Picture of “%1” taken</source>
        <translation>Captura de «%1» realizada</translation>
    </message>
    <message>
        <source>It is stored as “%1” in %2.</source>
        <translation>Se ha guardado como «%1» en %2.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>No preview is shown</source>
        <translation>No se muestra ninguna vista previa</translation>
    </message>
    <message>
        <source>Another program has the keyboard and the mouse, as one that locks the screen.</source>
        <translation>Otro programa ocupa el teclado y el ratón, por ejemplo uno que bloquea la pantalla.</translation>
    </message>
    <message>
        <source>There is no window to show.</source>
        <translation>No hay ninguna ventana que mostrar.</translation>
    </message>
    <message>
        <source>A window may still be open</source>
        <translation>Puede que una ventana siga abierta</translation>
    </message>
    <message>
        <source>The windows cannot be seen any more, so it is not known whether “%1” has closed.</source>
        <translation>Lumaroo ya no ve las ventanas, así que no se sabe si la ventana «%1» se ha cerrado.</translation>
    </message>
    <message>
        <source>Untitled window</source>
        <translation>Sin título</translation>
    </message>
</context>
</TS>
