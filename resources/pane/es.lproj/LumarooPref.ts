<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>LumarooPref</name>
    <message>
        <source>&amp;General</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>Turn Lumaroo on or off</source>
        <translation>Activar o desactivar Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo funciona en segundo plano. Sigue activado al cerrar esta ventana.</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>Qué hacer a continuación</translation>
    </message>
    <message>
        <source>Hold the modifier keys and press a movement key. Lumaroo marks a window; each further press moves the mark to the next window.</source>
        <translation>Mantenga pulsadas las teclas modificadoras y pulse una tecla de movimiento. Lumaroo marca una ventana; cada nueva pulsación lleva la marca a la ventana siguiente.</translation>
    </message>
    <message>
        <source>Let go of the modifier keys, and you are in the marked window.</source>
        <translation>Suelte las teclas modificadoras y estará en la ventana marcada.</translation>
    </message>
    <message>
        <source>You see and choose all these keys on the page “Keys”.</source>
        <translation>Todas estas teclas se ven y se eligen en la página «Teclas».</translation>
    </message>
    <message>
        <source>New to Lumaroo</source>
        <translation>Primeros pasos con Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Start the tutorial</source>
        <translation>&amp;Iniciar el tutorial</translation>
    </message>
    <message>
        <source>The tutorial shows the keys at work. It turns Lumaroo on if it is off.</source>
        <translation>El tutorial muestra las teclas en acción. Activa Lumaroo si está desactivado.</translation>
    </message>
    <message>
        <source>Help about turning Lumaroo on</source>
        <translation>Ayuda sobre la activación de Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Teclas</translation>
    </message>
    <message>
        <source>Modifier keys</source>
        <translation>Teclas modificadoras</translation>
    </message>
    <message>
        <source>Sh&amp;ift ⇧</source>
        <translation>&amp;Mayús ⇧</translation>
    </message>
    <message>
        <source>&amp;Control ⌃</source>
        <translation>&amp;Ctrl ⌃</translation>
    </message>
    <message>
        <source>A&amp;lt ⌥</source>
        <translation>&amp;Alt ⌥</translation>
    </message>
    <message>
        <source>Sup&amp;er ⌘</source>
        <translation>S&amp;uper ⌘</translation>
    </message>
    <message>
        <source>The modifier keys in use</source>
        <translation>Las teclas modificadoras en uso</translation>
    </message>
    <message>
        <source>Hold these while you press one of the keys below.</source>
        <translation>Manténgalas pulsadas mientras pulsa una de las teclas de abajo.</translation>
    </message>
    <message>
        <source>Movement keys</source>
        <translation>Teclas de movimiento</translation>
    </message>
    <message>
        <source>Help about movement keys</source>
        <translation>Ayuda sobre las teclas de movimiento</translation>
    </message>
    <message>
        <source>This key is used more than once.</source>
        <translation>Esta tecla se usa más de una vez.</translation>
    </message>
    <message>
        <source>Click here, then press the new key</source>
        <translation>Haga clic aquí y después pulse la nueva tecla</translation>
    </message>
    <message>
        <source>Key to move up</source>
        <translation>Tecla para ir hacia arriba</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Pulse una tecla</translation>
    </message>
    <message>
        <source>Key to move right</source>
        <translation>Tecla para ir hacia la derecha</translation>
    </message>
    <message>
        <source>Key to move down</source>
        <translation>Tecla para ir hacia abajo</translation>
    </message>
    <message>
        <source>Key to move left</source>
        <translation>Tecla para ir hacia la izquierda</translation>
    </message>
    <message>
        <source>Key to move to the window under the marked one</source>
        <translation>Tecla para ir a la ventana que está debajo de la marcada</translation>
    </message>
    <message>
        <source>U&amp;p</source>
        <translation>Arri&amp;ba</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Derecha</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>Abaj&amp;o</translation>
    </message>
    <message>
        <source>Le&amp;ft</source>
        <translation>&amp;Izquierda</translation>
    </message>
    <message>
        <source>U&amp;nder</source>
        <translation>Deba&amp;jo</translation>
    </message>
    <message>
        <source>Action keys</source>
        <translation>Teclas de acción</translation>
    </message>
    <message>
        <source>Help about action keys</source>
        <translation>Ayuda sobre las teclas de acción</translation>
    </message>
    <message>
        <source>Key to open these settings</source>
        <translation>Tecla para abrir esta configuración</translation>
    </message>
    <message>
        <source>Key to make a screenshot</source>
        <translation>Tecla para hacer una captura de pantalla</translation>
    </message>
    <message>
        <source>Key to close the window</source>
        <translation>Tecla para cerrar la ventana</translation>
    </message>
    <message>
        <source>Key to show a preview</source>
        <translation>Tecla para mostrar una vista previa</translation>
    </message>
    <message>
        <source>Key to cancel the selection</source>
        <translation>Tecla para cancelar la selección</translation>
    </message>
    <message>
        <source>Key to jump to the selection</source>
        <translation>Tecla para saltar a la selección</translation>
    </message>
    <message>
        <source>&amp;Open these settings</source>
        <translation>Abrir &amp;esta configuración</translation>
    </message>
    <message>
        <source>&amp;Make a screenshot</source>
        <translation>&amp;Hacer captura de pantalla</translation>
    </message>
    <message>
        <source>Close the &amp;window</source>
        <translation>Cerrar la &amp;ventana</translation>
    </message>
    <message>
        <source>Show a pre&amp;view</source>
        <translation>Mostrar vista &amp;previa</translation>
    </message>
    <message>
        <source>Cancel the &amp;selection</source>
        <translation>Cancelar &amp;la selección</translation>
    </message>
    <message>
        <source>&amp;Jump to the selection</source>
        <translation>&amp;Saltar a la selección</translation>
    </message>
    <message>
        <source>To change a key, click it and press the new one. To try a key, press it with the modifier keys. A warning sign stands beside a key that is used twice.</source>
        <translation>Para cambiar una tecla, haga clic en ella y pulse la nueva. Para probar una tecla, púlsela con las teclas modificadoras. Un signo de advertencia aparece junto a las teclas que se usan más de una vez.</translation>
    </message>
    <message>
        <source>&amp;Behavior</source>
        <translation>Comportamie&amp;nto</translation>
    </message>
    <message>
        <source>Order of windows</source>
        <translation>Orden de las ventanas</translation>
    </message>
    <message>
        <source>&amp;Left and right, go by:</source>
        <translation>&amp;Izquierda y derecha, según:</translation>
    </message>
    <message>
        <source>First selected window</source>
        <translation>Ventana de partida</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borde derecho</translation>
    </message>
    <message>
        <source>Leading edge</source>
        <translation>Borde delantero</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Up and &amp;down, go by:</source>
        <translation>Arriba y aba&amp;jo, según:</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Borde superior</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>Borde inferior</translation>
    </message>
    <message>
        <source>The key Under &amp;cycles:</source>
        <translation>&amp;La tecla Debajo recorre:</translation>
    </message>
    <message>
        <source>Up the stack</source>
        <translation>La pila hacia arriba</translation>
    </message>
    <message>
        <source>Down the stack</source>
        <translation>La pila hacia abajo</translation>
    </message>
    <message>
        <source>Down the stack goes from a window to the one that it covers, up the stack the other way.</source>
        <translation>Hacia abajo se va de una ventana a la que tapa; hacia arriba, al revés.</translation>
    </message>
    <message>
        <source>The leading edge is the one that faces the way you move.</source>
        <translation>El borde delantero es el que mira hacia donde se mueve.</translation>
    </message>
    <message>
        <source>&amp;Wrap around at the left and right edges of the screen</source>
        <translation>Dar la vuelta &amp;en los bordes izquierdo y derecho</translation>
    </message>
    <message>
        <source>Wrap around at the top and botto&amp;m edges of the screen</source>
        <translation>Dar la vuelta en los &amp;bordes superior e inferior</translation>
    </message>
    <message>
        <source>Staying active</source>
        <translation>Permanecer activo</translation>
    </message>
    <message>
        <source>Acti&amp;vate only by pressing the modifier keys twice</source>
        <translation>Activar &amp;solo al pulsar dos veces las teclas modificadoras</translation>
    </message>
    <message>
        <source>Lumaroo then takes no combination from other programs, and always stays active.</source>
        <translation>Lumaroo no quita entonces ninguna combinación a otros programas y permanece siempre activo.</translation>
    </message>
    <message>
        <source>Keep Lumaroo active:</source>
        <translation>Mantener Lumaroo activo:</translation>
    </message>
    <message>
        <source>Keep Lumaroo active</source>
        <translation>Mantener Lumaroo activo</translation>
    </message>
    <message>
        <source>Modi&amp;fier keys pressed twice</source>
        <translation>Con doble pulsación de las teclas &amp;modificadoras</translation>
    </message>
    <message>
        <source>M&amp;odifier keys pressed once</source>
        <translation>Con una sola &amp;pulsación de las teclas modificadoras</translation>
    </message>
    <message>
        <source>An active Lumaroo waits until you choose a window or cancel.</source>
        <translation>Mientras está activo, Lumaroo espera a que se elija una ventana o se cancele.</translation>
    </message>
    <message>
        <source>Key repeat</source>
        <translation>Repetición de teclas</translation>
    </message>
    <message>
        <source>Re&amp;peat while a movement key is held</source>
        <translation>Repetir al mantener pulsada una tecla de m&amp;ovimiento</translation>
    </message>
    <message>
        <source>D&amp;elay before the first repeat:</source>
        <translation>Retardo antes &amp;de repetir:</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Corto</translation>
    </message>
    <message>
        <source>Delay before the first repeat</source>
        <translation>Retardo antes de la primera repetición</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Largo</translation>
    </message>
    <message>
        <source>Repeat &amp;speed:</source>
        <translation>&amp;Velocidad:</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lenta</translation>
    </message>
    <message>
        <source>Repeat speed</source>
        <translation>Velocidad de repetición</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Hold an arrow key here.</source>
        <translation>Mantenga pulsada aquí una flecha.</translation>
    </message>
    <message>
        <source>Try the key repeat</source>
        <translation>Probar la repetición de teclas</translation>
    </message>
    <message>
        <source>Click the windows, then hold an arrow key.</source>
        <translation>Haga clic en las ventanas y mantenga pulsada una flecha.</translation>
    </message>
    <message>
        <source>Try &amp;it:</source>
        <translation>Probar a&amp;quí:</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Superposición</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>&amp;Color:</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Color de la superposición</translation>
    </message>
    <message>
        <source>Choose the color of the overlay</source>
        <translation>Elegir el color de la superposición</translation>
    </message>
    <message>
        <source>Use s&amp;ystem color</source>
        <translation>&amp;Usar el color del sistema</translation>
    </message>
    <message>
        <source>A&amp;nimate the overlay</source>
        <translation>&amp;Animar la superposición</translation>
    </message>
    <message>
        <source>The overlay will move and change gradually instead of at once.</source>
        <translation>La superposición se moverá y cambiará gradualmente y no de golpe.</translation>
    </message>
    <message>
        <source>Help about the order of windows</source>
        <translation>Ayuda sobre el orden de las ventanas</translation>
    </message>
    <message>
        <source>&amp;Updates</source>
        <translation>Actuali&amp;zaciones</translation>
    </message>
    <message>
        <source>Automatic check</source>
        <translation>Búsqueda automática</translation>
    </message>
    <message>
        <source>&amp;Check for new versions automatically</source>
        <translation>&amp;Buscar nuevas versiones automáticamente</translation>
    </message>
    <message>
        <source>Lumaroo looks once a day and asks before it installs anything.</source>
        <translation>Lumaroo busca una vez al día y pregunta antes de instalar nada.</translation>
    </message>
    <message>
        <source>Check by hand</source>
        <translation>Búsqueda manual</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Buscar &amp;ahora</translation>
    </message>
    <message>
        <source>State of updates</source>
        <translation>Estado de las actualizaciones</translation>
    </message>
    <message>
        <source>Last successful check: %1</source>
        <translation>Última búsqueda correcta: %1</translation>
    </message>
    <message>
        <source>Last successful check: never</source>
        <translation>Última búsqueda correcta: ninguna</translation>
    </message>
    <message>
        <source>Version %1 is ready. It is installed when you close the settings.</source>
        <translation>La versión %1 está lista. Se instalará al cerrar la configuración.</translation>
    </message>
    <message>
        <source>No new version is waiting to be installed.</source>
        <translation>No hay ninguna versión nueva pendiente de instalar.</translation>
    </message>
    <message>
        <source>⚠ For 30 days Lumaroo could not find out about new versions. Check the connection to the Internet, or look on the web site.</source>
        <translation>⚠ Desde hace 30 días, Lumaroo no ha podido saber si hay nuevas versiones. Compruebe la conexión a Internet o consulte el sitio web.</translation>
    </message>
    <message>
        <source>Help about updates</source>
        <translation>Ayuda sobre las actualizaciones</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Without a mou&amp;se</source>
        <translation>&amp;Sin ratón</translation>
    </message>
    <message>
        <source>Al&amp;erts</source>
        <translation>A&amp;dvertencias</translation>
    </message>
    <message>
        <source>&amp;Order of windows</source>
        <translation>&amp;Orden de las ventanas</translation>
    </message>
    <message>
        <source>A&amp;ction keys</source>
        <translation>Teclas de &amp;acción</translation>
    </message>
    <message>
        <source>&amp;Movement keys</source>
        <translation>Teclas de &amp;movimiento</translation>
    </message>
    <message>
        <source>Turning &amp;Lumaroo on</source>
        <translation>Activar &amp;Lumaroo</translation>
    </message>
    <message>
        <source>Read in the help</source>
        <translation>Leer en la ayuda</translation>
    </message>
    <message>
        <source>Your keys</source>
        <translation>Teclas en uso</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Visit the &amp;web page</source>
        <translation>&amp;Visitar la página web</translation>
    </message>
    <message>
        <source>&amp;Feedback on the web</source>
        <translation>&amp;Comentarios en la web</translation>
    </message>
    <message>
        <source>Send &amp;feedback…</source>
        <translation>&amp;Enviar comentarios…</translation>
    </message>
    <message>
        <source>Help about using Lumaroo without a mouse</source>
        <translation>Ayuda sobre el uso sin ratón</translation>
    </message>
    <message>
        <source>Abou&amp;t</source>
        <translation>Ace&amp;rca de</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Créditos</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Lumaroo developers</source>
        <translation>Copyright © 2026 Los desarrolladores de Lumaroo</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>tono color</translation>
    </message>
    <message>
        <source>More help</source>
        <translation>Más ayuda</translation>
    </message>
    <message>
        <source>What is new in Lumaroo</source>
        <translation>Novedades de Lumaroo</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>&amp;Do not show this again for this version</source>
        <translation>&amp;No volver a mostrar para esta versión</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Start Lumaroo at l&amp;ogin</source>
        <translation>Iniciar Lumaroo &amp;al iniciar sesión</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Restore all keys</source>
        <translation>Restablecer todas las teclas</translation>
    </message>
</context>
</TS>
