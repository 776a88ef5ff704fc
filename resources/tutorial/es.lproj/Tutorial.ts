<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Tutorial</name>
    <message>
        <source>Lumaroo tutorial</source>
        <translation>Tutorial de Lumaroo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>A&amp;trás</translation>
    </message>
    <message>
        <source>&amp;Skip this step</source>
        <translation>&amp;Omitir este paso</translation>
    </message>
    <message>
        <source>Go on &amp;without these keys</source>
        <translation>&amp;Continuar sin estas teclas</translation>
    </message>
    <message>
        <source>&amp;Leave the tutorial</source>
        <translation>&amp;Salir del tutorial</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>&amp;Once more</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>&amp;Turn Lumaroo on</source>
        <translation>&amp;Activar Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>&amp;Volver a preguntar</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>&amp;Usar %1</translation>
    </message>
    <message>
        <source>Page Down skips a step, Page Up goes back, Escape leaves the tutorial.</source>
        <translation>Av Pág omite un paso, Re Pág vuelve atrás, Esc sale del tutorial.</translation>
    </message>
    <message>
        <source>Escape leaves the tutorial.</source>
        <translation>Esc sale del tutorial.</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Triángulo</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Estrella</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>then</source>
        <translation>después</translation>
    </message>
    <message>
        <source>twice, then</source>
        <translation>dos veces, después</translation>
    </message>
    <message>
        <source>Go to the next window</source>
        <translation>Ir a la ventana siguiente</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. A frame goes to the next window; let go to be there.</source>
        <translation>Mantenga pulsado %1 y pulse %2. Un marco pasa a la ventana siguiente; suelte para estar en ella.</translation>
    </message>
    <message>
        <source>There it is. Now let go of %1.</source>
        <translation>Ahí está. Ahora suelte %1.</translation>
    </message>
    <message>
        <source>Press %1 twice and let go. Then press %2: a frame goes to the next window. %3 takes you there.</source>
        <translation>Pulse %1 dos veces y suelte. Después pulse %2: un marco pasa a la ventana siguiente. %3 lleva hasta ella.</translation>
    </message>
    <message>
        <source>There it is. Now press %3.</source>
        <translation>Ahí está. Ahora pulse %3.</translation>
    </message>
    <message>
        <source>You are in the next window.</source>
        <translation>Ya está en la ventana siguiente.</translation>
    </message>
    <message>
        <source>Go round the edge</source>
        <translation>Pasar por el borde</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Hold %1 and press %2 once: the frame goes round to the circle. Then let go.</source>
        <translation>El triángulo es el último de su fila. Mantenga pulsado %1 y pulse %2 una vez: el marco da la vuelta hasta el círculo. Después suelte.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the circle.</source>
        <translation>Suelte %1 cuando el marco rodee el círculo.</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Press %1 twice, then %2 once: the frame goes round to the circle. Then press %3.</source>
        <translation>El triángulo es el último de su fila. Pulse %1 dos veces y después %2 una vez: el marco da la vuelta hasta el círculo. Después pulse %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the circle.</source>
        <translation>Pulse %3 cuando el marco rodee el círculo.</translation>
    </message>
    <message>
        <source>Round the edge, and back at the row's beginning.</source>
        <translation>Por el borde y de vuelta al principio de la fila.</translation>
    </message>
    <message>
        <source>Reach a window that is covered</source>
        <translation>Llegar a una ventana tapada</translation>
    </message>
    <message>
        <source>A star lies under the square. Hold %1 and press %2: the frame goes to what is underneath. Then let go.</source>
        <translation>Debajo del cuadrado hay una estrella. Mantenga pulsado %1 y pulse %2: el marco pasa a lo que está debajo. Después suelte.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the star.</source>
        <translation>Suelte %1 cuando el marco rodee la estrella.</translation>
    </message>
    <message>
        <source>A star lies under the square. Press %1 twice, then %2: the frame goes to what is underneath. Then press %3.</source>
        <translation>Debajo del cuadrado hay una estrella. Pulse %1 dos veces y después %2: el marco pasa a lo que está debajo. Después pulse %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the star.</source>
        <translation>Pulse %3 cuando el marco rodee la estrella.</translation>
    </message>
    <message>
        <source>There is the star.</source>
        <translation>Ahí está la estrella.</translation>
    </message>
    <message>
        <source>It may take several presses: your settings go through the windows upwards.</source>
        <translation>Puede que haya que pulsar varias veces: según la configuración, se recorren las ventanas de abajo arriba.</translation>
    </message>
    <message>
        <source>Change your mind</source>
        <translation>Cambiar de idea</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. Before you let go, press %3: nothing will have changed.</source>
        <translation>Mantenga pulsado %1 y pulse %2. Antes de soltar, pulse %3: no habrá cambiado nada.</translation>
    </message>
    <message>
        <source>Now press %3 while you hold %1.</source>
        <translation>Ahora pulse %3 mientras mantiene pulsado %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. Now press %3: nothing will have changed.</source>
        <translation>Pulse %1 dos veces y después %2. Ahora pulse %3: no habrá cambiado nada.</translation>
    </message>
    <message>
        <source>Now press %3.</source>
        <translation>Ahora pulse %3.</translation>
    </message>
    <message>
        <source>You are where you were.</source>
        <translation>Sigue donde estaba.</translation>
    </message>
    <message>
        <source>Go further</source>
        <translation>Ir más lejos</translation>
    </message>
    <message>
        <source>Hold %1 and press %2 until the frame is around the triangle. Then press %3, or just let go.</source>
        <translation>Mantenga pulsado %1 y pulse %2 hasta que el marco rodee el triángulo. Después pulse %3 o simplemente suelte.</translation>
    </message>
    <message>
        <source>At the triangle, press %3 or let go.</source>
        <translation>En el triángulo, pulse %3 o suelte.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2 until the frame is around the triangle. Then press %3.</source>
        <translation>Pulse %1 dos veces y después %2 hasta que el marco rodee el triángulo. Después pulse %3.</translation>
    </message>
    <message>
        <source>At the triangle, press %3.</source>
        <translation>En el triángulo, pulse %3.</translation>
    </message>
    <message>
        <source>You are at the triangle.</source>
        <translation>Ya está en el triángulo.</translation>
    </message>
    <message>
        <source>Do something with a window</source>
        <translation>Hacer algo con una ventana</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. That closes the window you are in, here the star.</source>
        <translation>Mantenga pulsado %1 y pulse %2. Eso cierra la ventana en la que está, aquí la estrella.</translation>
    </message>
    <message>
        <source>Let go, and press %2 with %1 in the star.</source>
        <translation>Suelte y, en la estrella, pulse %2 con %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. That closes the window you are in, here the star.</source>
        <translation>Pulse %1 dos veces y después %2. Eso cierra la ventana en la que está, aquí la estrella.</translation>
    </message>
    <message>
        <source>Now press %2.</source>
        <translation>Ahora pulse %2.</translation>
    </message>
    <message>
        <source>The star is closed.</source>
        <translation>La estrella está cerrada.</translation>
    </message>
    <message>
        <source>That came too late. Press %3 while the frame is there.</source>
        <translation>Ha sido demasiado tarde. Pulse %3 mientras el marco esté ahí.</translation>
    </message>
    <message>
        <source>That led somewhere else. Try once more from here.</source>
        <translation>Eso ha llevado a otro sitio. Inténtelo de nuevo desde aquí.</translation>
    </message>
    <message>
        <source>That is all it takes</source>
        <translation>No hace falta más</translation>
    </message>
    <message>
        <source>These keys work in every program. All of them can be changed in Lumaroo's settings, where you find this tutorial again.</source>
        <translation>Estas teclas funcionan en todos los programas. Todas se pueden cambiar en la configuración de Lumaroo, donde también se encuentra este tutorial.</translation>
    </message>
    <message>
        <source>One moment</source>
        <translation>Un momento</translation>
    </message>
    <message>
        <source>Lumaroo is asked for its keys.</source>
        <translation>Se están consultando las teclas de Lumaroo.</translation>
    </message>
    <message>
        <source>The tutorial does not work here</source>
        <translation>El tutorial no funciona aquí</translation>
    </message>
    <message>
        <source>This session has no message bus, over which programs hear of each other. Start the tutorial from within a desktop session.</source>
        <translation>Esta sesión no tiene un bus de mensajes por el que los programas se comuniquen. Inicie el tutorial desde una sesión de escritorio.</translation>
    </message>
    <message>
        <source>Lumaroo is off</source>
        <translation>Lumaroo está desactivado</translation>
    </message>
    <message>
        <source>The tutorial shows Lumaroo at work, so it has to be on.</source>
        <translation>El tutorial muestra Lumaroo en acción, así que tiene que estar activado.</translation>
    </message>
    <message>
        <source>Lumaroo does not start</source>
        <translation>Lumaroo no se inicia</translation>
    </message>
    <message>
        <source>A part of it is missing. Install Lumaroo again.</source>
        <translation>Falta una parte. Vuelva a instalar Lumaroo.</translation>
    </message>
    <message>
        <source>Lumaroo does not answer</source>
        <translation>Lumaroo no responde</translation>
    </message>
    <message>
        <source>It is running, but it says nothing. Ask again in a moment, or turn it off and on in its settings.</source>
        <translation>Está en ejecución, pero no dice nada. Vuelva a preguntar en un momento, o desactívelo y actívelo en su configuración.</translation>
    </message>
    <message>
        <source>Lumaroo gets no keys here</source>
        <translation>Lumaroo no recibe ninguna tecla aquí</translation>
    </message>
    <message>
        <source>It needs an X11 session. Most desktops offer one where you log in.</source>
        <translation>Necesita una sesión X11. La mayoría de los escritorios ofrecen una al iniciar sesión.</translation>
    </message>
    <message>
        <source>No modifier keys are chosen</source>
        <translation>No se ha elegido ninguna tecla modificadora</translation>
    </message>
    <message>
        <source>Lumaroo's keys are pressed together with modifier keys, and your settings have none.</source>
        <translation>Las teclas de Lumaroo se pulsan junto con teclas modificadoras, y en la configuración no hay ninguna.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Otro programa ocupa teclas de Lumaroo</translation>
    </message>
    <message>
        <source>With %1, Lumaroo does not get these keys: %2.</source>
        <translation>Con %1, Lumaroo no recibe estas teclas: %2.</translation>
    </message>
    <message>
        <source>Free them in that program, or choose others in Lumaroo's settings; then ask again.</source>
        <translation>Libérelas en ese programa o elija otras en la configuración de Lumaroo; después vuelva a preguntar.</translation>
    </message>
    <message>
        <source>If you hold %1 instead, all of Lumaroo's movement keys are free.</source>
        <translation>Si mantiene pulsado %1 en su lugar, todas las teclas de movimiento de Lumaroo están libres.</translation>
    </message>
    <message>
        <source>The keys do not work</source>
        <translation>Las teclas no funcionan</translation>
    </message>
    <message>
        <source>Choose other keys on the page “Keys” of Lumaroo's settings, then ask again.</source>
        <translation>Elija otras teclas en la página «Teclas» de la configuración de Lumaroo y después vuelva a preguntar.</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>No se ha podido guardar la elección. Puede que el disco esté lleno.</translation>
    </message>
</context>
</TS>
