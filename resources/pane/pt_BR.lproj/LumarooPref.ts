<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>LumarooPref</name>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Geral</translation>
    </message>
    <message>
        <source>Turn Lumaroo on or off</source>
        <translation>Ligar ou desligar o Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>O &amp;Lumaroo funciona em segundo plano. Ele continua ligado quando você fecha esta janela.</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>O que fazer agora</translation>
    </message>
    <message>
        <source>Hold the modifier keys and press a movement key. Lumaroo marks a window; each further press moves the mark to the next window.</source>
        <translation>Mantenha as teclas modificadoras pressionadas e pressione uma tecla de movimento. O Lumaroo marca uma janela; cada novo toque leva a marcação para a próxima janela.</translation>
    </message>
    <message>
        <source>Let go of the modifier keys, and you are in the marked window.</source>
        <translation>Solte as teclas modificadoras e você estará na janela marcada.</translation>
    </message>
    <message>
        <source>You see and choose all these keys on the page “Keys”.</source>
        <translation>Você vê e escolhe todas essas teclas na página “Teclas”.</translation>
    </message>
    <message>
        <source>New to Lumaroo</source>
        <translation>Primeira vez no Lumaroo?</translation>
    </message>
    <message>
        <source>&amp;Start the tutorial</source>
        <translation>Iniciar o tut&amp;orial</translation>
    </message>
    <message>
        <source>The tutorial shows the keys at work. It turns Lumaroo on if it is off.</source>
        <translation>O tutorial mostra as teclas em ação. Ele liga o Lumaroo se estiver desligado.</translation>
    </message>
    <message>
        <source>Help about turning Lumaroo on</source>
        <translation>Ajuda sobre como ligar o Lumaroo</translation>
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
        <translation>S&amp;hift ⇧</translation>
    </message>
    <message>
        <source>&amp;Control ⌃</source>
        <translation>Ct&amp;rl ⌃</translation>
    </message>
    <message>
        <source>A&amp;lt ⌥</source>
        <translation>A&amp;lt ⌥</translation>
    </message>
    <message>
        <source>Sup&amp;er ⌘</source>
        <translation>Sup&amp;er ⌘</translation>
    </message>
    <message>
        <source>The modifier keys in use</source>
        <translation>As teclas modificadoras em uso</translation>
    </message>
    <message>
        <source>Hold these while you press one of the keys below.</source>
        <translation>Mantenha-as pressionadas enquanto pressiona uma das teclas abaixo.</translation>
    </message>
    <message>
        <source>Movement keys</source>
        <translation>Teclas de movimento</translation>
    </message>
    <message>
        <source>Help about movement keys</source>
        <translation>Ajuda sobre as teclas de movimento</translation>
    </message>
    <message>
        <source>This key is used more than once.</source>
        <translation>Esta tecla é usada mais de uma vez.</translation>
    </message>
    <message>
        <source>Click here, then press the new key</source>
        <translation>Clique aqui e pressione a nova tecla</translation>
    </message>
    <message>
        <source>Key to move up</source>
        <translation>Tecla para mover para cima</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>Pressione uma tecla</translation>
    </message>
    <message>
        <source>Key to move right</source>
        <translation>Tecla para mover para a direita</translation>
    </message>
    <message>
        <source>Key to move down</source>
        <translation>Tecla para mover para baixo</translation>
    </message>
    <message>
        <source>Key to move left</source>
        <translation>Tecla para mover para a esquerda</translation>
    </message>
    <message>
        <source>Key to move to the window under the marked one</source>
        <translation>Tecla para mover para a janela por trás da marcada</translation>
    </message>
    <message>
        <source>U&amp;p</source>
        <translation>Aci&amp;ma</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Direita</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>A&amp;baixo</translation>
    </message>
    <message>
        <source>Le&amp;ft</source>
        <translation>Es&amp;querda</translation>
    </message>
    <message>
        <source>U&amp;nder</source>
        <translation>&amp;Por trás</translation>
    </message>
    <message>
        <source>Action keys</source>
        <translation>Teclas de ação</translation>
    </message>
    <message>
        <source>Help about action keys</source>
        <translation>Ajuda sobre as teclas de ação</translation>
    </message>
    <message>
        <source>Key to open these settings</source>
        <translation>Tecla para abrir estas configurações</translation>
    </message>
    <message>
        <source>Key to make a screenshot</source>
        <translation>Tecla para fazer uma captura de tela</translation>
    </message>
    <message>
        <source>Key to close the window</source>
        <translation>Tecla para fechar a janela</translation>
    </message>
    <message>
        <source>Key to show a preview</source>
        <translation>Tecla para mostrar uma prévia</translation>
    </message>
    <message>
        <source>Key to cancel the selection</source>
        <translation>Tecla para cancelar a seleção</translation>
    </message>
    <message>
        <source>Key to jump to the selection</source>
        <translation>Tecla para ir para a seleção</translation>
    </message>
    <message>
        <source>&amp;Open these settings</source>
        <translation>Abrir as con&amp;figurações</translation>
    </message>
    <message>
        <source>&amp;Make a screenshot</source>
        <translation>Fa&amp;zer captura de tela</translation>
    </message>
    <message>
        <source>Close the &amp;window</source>
        <translation>Fechar a ja&amp;nela</translation>
    </message>
    <message>
        <source>Show a pre&amp;view</source>
        <translation>Mostrar uma pré&amp;via</translation>
    </message>
    <message>
        <source>Cancel the &amp;selection</source>
        <translation>Cancelar a seleçã&amp;o</translation>
    </message>
    <message>
        <source>&amp;Jump to the selection</source>
        <translation>&amp;Ir para a seleção</translation>
    </message>
    <message>
        <source>To change a key, click it and press the new one. To try a key, press it with the modifier keys. A warning sign stands beside a key that is used twice.</source>
        <translation>Para alterar uma tecla, clique nela e pressione a nova. Para testar uma tecla, pressione-a com as teclas modificadoras. Um sinal de aviso aparece ao lado de teclas usadas mais de uma vez.</translation>
    </message>
    <message>
        <source>&amp;Behavior</source>
        <translation>&amp;Comportamento</translation>
    </message>
    <message>
        <source>Order of windows</source>
        <translation>Ordem das janelas</translation>
    </message>
    <message>
        <source>&amp;Left and right, go by:</source>
        <translation>&amp;Esquerda e direita, por:</translation>
    </message>
    <message>
        <source>First selected window</source>
        <translation>Janela de partida</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borda esquerda</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borda direita</translation>
    </message>
    <message>
        <source>Leading edge</source>
        <translation>Borda dianteira</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Up and &amp;down, go by:</source>
        <translation>Acima e abai&amp;xo, por:</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Borda superior</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>Borda inferior</translation>
    </message>
    <message>
        <source>The key Under &amp;cycles:</source>
        <translation>&amp;Por trás percorre:</translation>
    </message>
    <message>
        <source>Up the stack</source>
        <translation>A pilha para cima</translation>
    </message>
    <message>
        <source>Down the stack</source>
        <translation>A pilha para baixo</translation>
    </message>
    <message>
        <source>Down the stack goes from a window to the one that it covers, up the stack the other way.</source>
        <translation>Para baixo, vai-se de uma janela para a que ela encobre; para cima, o contrário.</translation>
    </message>
    <message>
        <source>The leading edge is the one that faces the way you move.</source>
        <translation>A borda dianteira é a que está voltada para a direção do movimento.</translation>
    </message>
    <message>
        <source>&amp;Wrap around at the left and right edges of the screen</source>
        <translation>&amp;Dar a volta nas bordas esquerda e direita da tela</translation>
    </message>
    <message>
        <source>Wrap around at the top and botto&amp;m edges of the screen</source>
        <translation>Dar a &amp;volta nas bordas superior e inferior da tela</translation>
    </message>
    <message>
        <source>Staying active</source>
        <translation>Permanecer ativo</translation>
    </message>
    <message>
        <source>Acti&amp;vate only by pressing the modifier keys twice</source>
        <translation>Ativar some&amp;nte ao pressionar duas vezes as teclas modificadoras</translation>
    </message>
    <message>
        <source>Lumaroo then takes no combination from other programs, and always stays active.</source>
        <translation>Assim, o Lumaroo não tira nenhuma combinação de outros programas e permanece sempre ativo.</translation>
    </message>
    <message>
        <source>Keep Lumaroo active:</source>
        <translation>Manter o Lumaroo ativo:</translation>
    </message>
    <message>
        <source>Keep Lumaroo active</source>
        <translation>Manter o Lumaroo ativo</translation>
    </message>
    <message>
        <source>Modi&amp;fier keys pressed twice</source>
        <translation>Modificadoras pressionadas duas ve&amp;zes</translation>
    </message>
    <message>
        <source>M&amp;odifier keys pressed once</source>
        <translation>Modi&amp;ficadoras pressionadas uma vez</translation>
    </message>
    <message>
        <source>An active Lumaroo waits until you choose a window or cancel.</source>
        <translation>Quando ativo, o Lumaroo espera até que você escolha uma janela ou cancele.</translation>
    </message>
    <message>
        <source>Key repeat</source>
        <translation>Repetição de teclas</translation>
    </message>
    <message>
        <source>Re&amp;peat while a movement key is held</source>
        <translation>&amp;Repetir enquanto uma tecla de movimento estiver pressionada</translation>
    </message>
    <message>
        <source>D&amp;elay before the first repeat:</source>
        <translation>Atraso &amp;inicial:</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Curto</translation>
    </message>
    <message>
        <source>Delay before the first repeat</source>
        <translation>Atraso antes da primeira repetição</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Longo</translation>
    </message>
    <message>
        <source>Repeat &amp;speed:</source>
        <translation>Ve&amp;locidade:</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lenta</translation>
    </message>
    <message>
        <source>Repeat speed</source>
        <translation>Velocidade da repetição</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Hold an arrow key here.</source>
        <translation>Mantenha aqui uma seta pressionada.</translation>
    </message>
    <message>
        <source>Try the key repeat</source>
        <translation>Testar a repetição de teclas</translation>
    </message>
    <message>
        <source>Click the windows, then hold an arrow key.</source>
        <translation>Clique nas janelas e mantenha uma seta pressionada.</translation>
    </message>
    <message>
        <source>Try &amp;it:</source>
        <translation>Teste a&amp;qui:</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Sobreposição</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>C&amp;or:</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>Cor da sobreposição</translation>
    </message>
    <message>
        <source>Choose the color of the overlay</source>
        <translation>Escolher a cor da sobreposição</translation>
    </message>
    <message>
        <source>Use s&amp;ystem color</source>
        <translation>Usar a cor do siste&amp;ma</translation>
    </message>
    <message>
        <source>A&amp;nimate the overlay</source>
        <translation>Animar a so&amp;breposição</translation>
    </message>
    <message>
        <source>The overlay will move and change gradually instead of at once.</source>
        <translation>A sobreposição se move e muda aos poucos, e não de uma só vez.</translation>
    </message>
    <message>
        <source>Help about the order of windows</source>
        <translation>Ajuda sobre a ordem das janelas</translation>
    </message>
    <message>
        <source>&amp;Updates</source>
        <translation>At&amp;ualizações</translation>
    </message>
    <message>
        <source>Automatic check</source>
        <translation>Verificação automática</translation>
    </message>
    <message>
        <source>&amp;Check for new versions automatically</source>
        <translation>Procurar &amp;novas versões automaticamente</translation>
    </message>
    <message>
        <source>Lumaroo looks once a day and asks before it installs anything.</source>
        <translation>O Lumaroo verifica uma vez por dia e pergunta antes de instalar qualquer coisa.</translation>
    </message>
    <message>
        <source>Check by hand</source>
        <translation>Verificação manual</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>&amp;Verificar agora</translation>
    </message>
    <message>
        <source>State of updates</source>
        <translation>Estado das atualizações</translation>
    </message>
    <message>
        <source>Last successful check: %1</source>
        <translation>Última verificação bem-sucedida: %1</translation>
    </message>
    <message>
        <source>Last successful check: never</source>
        <translation>Última verificação bem-sucedida: nenhuma</translation>
    </message>
    <message>
        <source>Version %1 is ready. It is installed when you close the settings.</source>
        <translation>A versão %1 está pronta. Ela será instalada quando você fechar as configurações.</translation>
    </message>
    <message>
        <source>No new version is waiting to be installed.</source>
        <translation>Nenhuma versão nova aguarda instalação.</translation>
    </message>
    <message>
        <source>⚠ For 30 days Lumaroo could not find out about new versions. Check the connection to the Internet, or look on the web site.</source>
        <translation>⚠ Há 30 dias o Lumaroo não consegue saber se há novas versões. Verifique a conexão com a Internet ou consulte o site.</translation>
    </message>
    <message>
        <source>Help about updates</source>
        <translation>Ajuda sobre as atualizações</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Without a mou&amp;se</source>
        <translation>S&amp;em mouse</translation>
    </message>
    <message>
        <source>Al&amp;erts</source>
        <translation>A&amp;visos</translation>
    </message>
    <message>
        <source>&amp;Order of windows</source>
        <translation>&amp;Ordem das janelas</translation>
    </message>
    <message>
        <source>A&amp;ction keys</source>
        <translation>Teclas &amp;de ação</translation>
    </message>
    <message>
        <source>&amp;Movement keys</source>
        <translation>Teclas de &amp;movimento</translation>
    </message>
    <message>
        <source>Turning &amp;Lumaroo on</source>
        <translation>Ligar o &amp;Lumaroo</translation>
    </message>
    <message>
        <source>Read in the help</source>
        <translation>Leia na ajuda</translation>
    </message>
    <message>
        <source>Your keys</source>
        <translation>Suas teclas</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Visit the &amp;web page</source>
        <translation>Visitar a página &amp;web</translation>
    </message>
    <message>
        <source>&amp;Feedback on the web</source>
        <translation>Enviar &amp;feedback na web</translation>
    </message>
    <message>
        <source>Send &amp;feedback…</source>
        <translation>Enviar &amp;feedback…</translation>
    </message>
    <message>
        <source>Help about using Lumaroo without a mouse</source>
        <translation>Ajuda sobre o uso do Lumaroo sem mouse</translation>
    </message>
    <message>
        <source>Abou&amp;t</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Créditos</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Lumaroo developers</source>
        <translation>Copyright © 2026 Os desenvolvedores do Lumaroo</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>cor cores colorido</translation>
    </message>
    <message>
        <source>More help</source>
        <translation>Mais ajuda</translation>
    </message>
    <message>
        <source>What is new in Lumaroo</source>
        <translation>Novidades do Lumaroo</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>&amp;Do not show this again for this version</source>
        <translation>&amp;Não mostrar novamente para esta versão</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Start Lumaroo at l&amp;ogin</source>
        <translation>&amp;Iniciar o Lumaroo com a sessão</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Restore all keys</source>
        <translation>Restaurar todas as teclas</translation>
    </message>
</context>
</TS>
