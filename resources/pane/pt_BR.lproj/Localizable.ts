<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>The system’s updates bring new versions of this copy.</source>
        <translation>As novas versões desta cópia chegam com as atualizações do sistema.</translation>
    </message>
    <message>
        <source>Press:</source>
        <translation>Pressione:</translation>
    </message>
    <message>
        <source>Hold %1 and press:</source>
        <translation>Segure %1 e pressione:</translation>
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
        <translation>O Lumaroo está ligado</translation>
    </message>
    <message>
        <source>Lumaroo Disabled</source>
        <translation>O Lumaroo está desligado</translation>
    </message>
    <message>
        <source>Version %@ (%@)</source>
        <translation>Versão %@ (%@)</translation>
    </message>
    <message>
        <source>Quit while key conflicts exist?</source>
        <translation>Sair mesmo com teclas em conflito?</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Quitting may cause unpredictable Lumaroo behavior.</source>
        <translation>As teclas marcadas têm várias ações atribuídas. Se você sair agora, o Lumaroo poderá se comportar de modo imprevisível.</translation>
    </message>
    <message>
        <source>This key cannot be used. Press a letter, a digit, a sign, an arrow or a key of the number pad.</source>
        <translation>Esta tecla não pode ser usada. Pressione uma letra, um dígito, um sinal, uma seta ou uma tecla do teclado numérico.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%@ is already in use.</source>
        <translation>%@ já está em uso.</translation>
    </message>
    <message>
        <source>Lumaroo already has an action associated with %@. Please choose another key.</source>
        <translation>O Lumaroo já tem uma ação associada a %@. Escolha outra tecla.</translation>
    </message>
    <message>
        <source>There are conflicts with the marked keys.</source>
        <translation>Há conflitos com as teclas marcadas.</translation>
    </message>
    <message>
        <source>The marked keys have multiple actions assigned to them. Please change them to remove the conflicts.</source>
        <translation>As teclas marcadas têm várias ações atribuídas. Altere-as para eliminar os conflitos.</translation>
    </message>
    <message>
        <source>Please change the marked HotKeys in the programs using them before setting them in Lumaroo.</source>
        <translation>Altere as teclas marcadas nos programas que as usam antes de defini-las no Lumaroo.</translation>
    </message>
    <message>
        <source>At least one modifier must be set</source>
        <translation>Pelo menos uma tecla modificadora deve estar selecionada</translation>
    </message>
    <message>
        <source>At least one modifier must be set to activate Lumaroo. Please select another modifier before unselecting this one.</source>
        <translation>O Lumaroo só pode ser ativado com pelo menos uma tecla modificadora. Selecione outra antes de desmarcar esta.</translation>
    </message>
    <message>
        <source>The web page is unavailable</source>
        <translation>A página web não está disponível</translation>
    </message>
    <message>
        <source>Please make sure you are connected to the Internet and try again later.</source>
        <translation>Verifique se você está conectado à Internet e tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Hold %1 and press %2</source>
        <translation>Segure %1 e pressione %2</translation>
    </message>
    <message>
        <source>Press %1 twice, then press %2</source>
        <translation>Pressione %1 duas vezes e depois %2</translation>
    </message>
    <message>
        <source>Lumaroo is off for now. The menu of its icon in the panel turns it on again.</source>
        <translation>O Lumaroo está desligado por enquanto. O menu do seu ícone no painel liga-o novamente.</translation>
    </message>
    <message>
        <source>Turn &amp;Lumaroo on with this switch.</source>
        <translation>Ligue o &amp;Lumaroo com este interruptor.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>O &amp;Lumaroo funciona em segundo plano. Ele continua ligado quando você fecha esta janela.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo has ended by itself: it crashed or was stopped. Turn it on again with this switch.</source>
        <translation>O &amp;Lumaroo foi encerrado inesperadamente. Ligue-o novamente com este interruptor.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo could not be started. Install it again, then turn it on with this switch.</source>
        <translation>Não foi possível iniciar o &amp;Lumaroo. Instale-o novamente e ligue-o com este interruptor.</translation>
    </message>
    <message>
        <source>&amp;Lumaroo was removed from this computer. Install it again to turn it on.</source>
        <translation>O &amp;Lumaroo foi removido deste computador. Instale-o novamente para ligá-lo.</translation>
    </message>
    <message>
        <source>All keys work.</source>
        <translation>Todas as teclas funcionam.</translation>
    </message>
    <message>
        <source>Some keys do not work, since other programs use them. The page “Keys” names them.</source>
        <translation>Algumas teclas não funcionam porque outros programas as usam. A página “Teclas” diz quais são.</translation>
    </message>
    <message>
        <source>Some keys do not work. The page “Keys” shows all of them.</source>
        <translation>Algumas teclas não funcionam. A página “Teclas” mostra todas.</translation>
    </message>
    <message>
        <source>No key works, since no modifier keys are chosen.</source>
        <translation>Nenhuma tecla funciona porque nenhuma tecla modificadora foi escolhida.</translation>
    </message>
    <message>
        <source>Lumaroo takes no key from other programs.</source>
        <translation>O Lumaroo não tira nenhuma tecla de outros programas.</translation>
    </message>
    <message>
        <source>This session has no hot keys for programs. Lumaroo needs an X11 session.</source>
        <translation>Esta sessão não oferece teclas de atalho aos programas. O Lumaroo precisa de uma sessão X11.</translation>
    </message>
    <message>
        <source>This session runs on Wayland. There no program may take keys or see the windows of others, so Lumaroo’s keys do nothing here. Your settings are kept. To use Lumaroo, log out and choose “X11” or “Xorg” on the login screen.</source>
        <translation>Esta sessão usa o Wayland. Nela, nenhum programa pode capturar teclas nem ver as janelas de outros; por isso as teclas do Lumaroo não fazem nada aqui. Suas configurações são mantidas. Para usar o Lumaroo, encerre a sessão e escolha “X11” ou “Xorg” na tela de início de sessão.</translation>
    </message>
    <message>
        <source>%1 is used by another program. Lumaroo cannot take it.</source>
        <translation>%1: em uso por outro programa. O Lumaroo não pode obter essa tecla.</translation>
    </message>
    <message>
        <source>%1 are used by other programs. Lumaroo cannot take them.</source>
        <translation>%1: em uso por outros programas. O Lumaroo não pode obter essas teclas.</translation>
    </message>
    <message>
        <source>Use %1 instead</source>
        <translation>Usar %1 em vez disso</translation>
    </message>
    <message>
        <source>Another program uses this key with the modifier keys.</source>
        <translation>Outro programa usa esta tecla com as teclas modificadoras.</translation>
    </message>
    <message>
        <source>The start at login could not be changed.</source>
        <translation>Não foi possível alterar a inicialização com a sessão.</translation>
    </message>
    <message>
        <source>Lumaroo cannot write the file “%1”. Check that you may change it, and try again.</source>
        <translation>O Lumaroo não consegue gravar o arquivo “%1”. Verifique se você tem permissão para alterá-lo e tente novamente.</translation>
    </message>
    <message>
        <source>Some keys do not work, since Shift alone would take the capital letters you type.</source>
        <translation>Algumas teclas não funcionam porque Shift sozinha tomaria as letras maiúsculas que você digita.</translation>
    </message>
    <message>
        <source>Choose one at least: without a modifier key, no key works.</source>
        <translation>Escolha pelo menos uma: sem tecla modificadora, nenhuma tecla funciona.</translation>
    </message>
    <message>
        <source>Shift alone would take the capital letters you type. Choose another modifier key with it.</source>
        <translation>Shift sozinha tomaria as letras maiúsculas que você digita. Escolha também outra tecla modificadora.</translation>
    </message>
    <message>
        <source>Restore this key</source>
        <translation>Restaurar esta tecla</translation>
    </message>
    <message>
        <source>%1 is used for “%2”.</source>
        <translation>%1 já é usada para “%2”.</translation>
    </message>
    <message>
        <source>%1 is used for “%2”. Change that key first.</source>
        <translation>%1 já é usada para “%2”. Altere essa tecla primeiro.</translation>
    </message>
    <message>
        <source>The key for “%1” is restored.</source>
        <translation>A tecla de “%1” foi restaurada.</translation>
    </message>
    <message>
        <source>You pressed %1: %2.</source>
        <translation>Você pressionou %1: %2.</translation>
    </message>
    <message>
        <source>All keys are restored.</source>
        <translation>Todas as teclas foram restauradas.</translation>
    </message>
    <message>
        <source>The keys are as they were before.</source>
        <translation>As teclas voltaram a ser como antes.</translation>
    </message>
</context>
</TS>
