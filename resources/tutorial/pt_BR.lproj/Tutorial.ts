<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Tutorial</name>
    <message>
        <source>Lumaroo tutorial</source>
        <translation>Tutorial do Lumaroo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>&amp;Skip this step</source>
        <translation>&amp;Pular esta etapa</translation>
    </message>
    <message>
        <source>Go on &amp;without these keys</source>
        <translation>&amp;Continuar sem essas teclas</translation>
    </message>
    <message>
        <source>&amp;Leave the tutorial</source>
        <translation>&amp;Sair do tutorial</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>C&amp;oncluir</translation>
    </message>
    <message>
        <source>&amp;Once more</source>
        <translation>&amp;Mais uma vez</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>&amp;Turn Lumaroo on</source>
        <translation>&amp;Ligar o Lumaroo</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Tentar de novo</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>P&amp;erguntar de novo</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>&amp;Usar %1</translation>
    </message>
    <message>
        <source>Page Down skips a step, Page Up goes back, Escape leaves the tutorial.</source>
        <translation>Page Down pula uma etapa, Page Up volta, Esc sai do tutorial.</translation>
    </message>
    <message>
        <source>Escape leaves the tutorial.</source>
        <translation>Esc sai do tutorial.</translation>
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
        <translation>Shift</translation>
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
        <translation>Quadrado</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Triângulo</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Estrela</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>then</source>
        <translation>depois</translation>
    </message>
    <message>
        <source>twice, then</source>
        <translation>duas vezes, depois</translation>
    </message>
    <message>
        <source>Go to the next window</source>
        <translation>Ir para a próxima janela</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. A frame goes to the next window; let go to be there.</source>
        <translation>Segure %1 e pressione %2. Uma moldura vai para a próxima janela; solte para ficar nela.</translation>
    </message>
    <message>
        <source>There it is. Now let go of %1.</source>
        <translation>Lá está ela. Agora solte %1.</translation>
    </message>
    <message>
        <source>Press %1 twice and let go. Then press %2: a frame goes to the next window. %3 takes you there.</source>
        <translation>Pressione %1 duas vezes e solte. Depois pressione %2: uma moldura vai para a próxima janela. %3 leva você até lá.</translation>
    </message>
    <message>
        <source>There it is. Now press %3.</source>
        <translation>Lá está ela. Agora pressione %3.</translation>
    </message>
    <message>
        <source>You are in the next window.</source>
        <translation>Você está na próxima janela.</translation>
    </message>
    <message>
        <source>Go round the edge</source>
        <translation>Dar a volta pela borda</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Hold %1 and press %2 once: the frame goes round to the circle. Then let go.</source>
        <translation>O triângulo é o último da sua fileira. Segure %1 e pressione %2 uma vez: a moldura dá a volta até o círculo. Depois solte.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the circle.</source>
        <translation>Solte %1 quando a moldura estiver em volta do círculo.</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Press %1 twice, then %2 once: the frame goes round to the circle. Then press %3.</source>
        <translation>O triângulo é o último da sua fileira. Pressione %1 duas vezes e depois %2 uma vez: a moldura dá a volta até o círculo. Depois pressione %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the circle.</source>
        <translation>Pressione %3 quando a moldura estiver em volta do círculo.</translation>
    </message>
    <message>
        <source>Round the edge, and back at the row's beginning.</source>
        <translation>Pela borda, e de volta ao começo da fileira.</translation>
    </message>
    <message>
        <source>Reach a window that is covered</source>
        <translation>Alcançar uma janela encoberta</translation>
    </message>
    <message>
        <source>A star lies under the square. Hold %1 and press %2: the frame goes to what is underneath. Then let go.</source>
        <translation>Há uma estrela sob o quadrado. Segure %1 e pressione %2: a moldura vai para o que está por trás. Depois solte.</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the star.</source>
        <translation>Solte %1 quando a moldura estiver em volta da estrela.</translation>
    </message>
    <message>
        <source>A star lies under the square. Press %1 twice, then %2: the frame goes to what is underneath. Then press %3.</source>
        <translation>Há uma estrela sob o quadrado. Pressione %1 duas vezes e depois %2: a moldura vai para o que está por trás. Depois pressione %3.</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the star.</source>
        <translation>Pressione %3 quando a moldura estiver em volta da estrela.</translation>
    </message>
    <message>
        <source>There is the star.</source>
        <translation>Aí está a estrela.</translation>
    </message>
    <message>
        <source>It may take several presses: your settings go through the windows upwards.</source>
        <translation>Pode ser preciso pressionar várias vezes: nas suas configurações, o caminho pelas janelas vai de baixo para cima.</translation>
    </message>
    <message>
        <source>Change your mind</source>
        <translation>Mudar de ideia</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. Before you let go, press %3: nothing will have changed.</source>
        <translation>Segure %1 e pressione %2. Antes de soltar, pressione %3: tudo fica como estava.</translation>
    </message>
    <message>
        <source>Now press %3 while you hold %1.</source>
        <translation>Agora pressione %3 enquanto segura %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. Now press %3: nothing will have changed.</source>
        <translation>Pressione %1 duas vezes e depois %2. Agora pressione %3: tudo fica como estava.</translation>
    </message>
    <message>
        <source>Now press %3.</source>
        <translation>Agora pressione %3.</translation>
    </message>
    <message>
        <source>You are where you were.</source>
        <translation>Você está onde estava.</translation>
    </message>
    <message>
        <source>Go further</source>
        <translation>Ir mais longe</translation>
    </message>
    <message>
        <source>Hold %1 and press %2 until the frame is around the triangle. Then press %3, or just let go.</source>
        <translation>Segure %1 e pressione %2 até que a moldura esteja em volta do triângulo. Depois pressione %3 ou simplesmente solte.</translation>
    </message>
    <message>
        <source>At the triangle, press %3 or let go.</source>
        <translation>No triângulo, pressione %3 ou solte.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2 until the frame is around the triangle. Then press %3.</source>
        <translation>Pressione %1 duas vezes e depois %2 até que a moldura esteja em volta do triângulo. Depois pressione %3.</translation>
    </message>
    <message>
        <source>At the triangle, press %3.</source>
        <translation>No triângulo, pressione %3.</translation>
    </message>
    <message>
        <source>You are at the triangle.</source>
        <translation>Você está no triângulo.</translation>
    </message>
    <message>
        <source>Do something with a window</source>
        <translation>Fazer algo com uma janela</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. That closes the window you are in, here the star.</source>
        <translation>Segure %1 e pressione %2. Isso fecha a janela em que você está, aqui a estrela.</translation>
    </message>
    <message>
        <source>Let go, and press %2 with %1 in the star.</source>
        <translation>Solte e, na estrela, pressione %2 com %1.</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. That closes the window you are in, here the star.</source>
        <translation>Pressione %1 duas vezes e depois %2. Isso fecha a janela em que você está, aqui a estrela.</translation>
    </message>
    <message>
        <source>Now press %2.</source>
        <translation>Agora pressione %2.</translation>
    </message>
    <message>
        <source>The star is closed.</source>
        <translation>A estrela foi fechada.</translation>
    </message>
    <message>
        <source>That came too late. Press %3 while the frame is there.</source>
        <translation>Foi tarde demais. Pressione %3 enquanto a moldura estiver visível.</translation>
    </message>
    <message>
        <source>That led somewhere else. Try once more from here.</source>
        <translation>Isso levou a outro lugar. Tente mais uma vez a partir daqui.</translation>
    </message>
    <message>
        <source>That is all it takes</source>
        <translation>É só isso</translation>
    </message>
    <message>
        <source>These keys work in every program. All of them can be changed in Lumaroo's settings, where you find this tutorial again.</source>
        <translation>Essas teclas funcionam em todos os programas. Todas podem ser alteradas nas configurações do Lumaroo, onde você também encontra este tutorial.</translation>
    </message>
    <message>
        <source>One moment</source>
        <translation>Um momento</translation>
    </message>
    <message>
        <source>Lumaroo is asked for its keys.</source>
        <translation>Consultando as teclas do Lumaroo.</translation>
    </message>
    <message>
        <source>The tutorial does not work here</source>
        <translation>O tutorial não funciona aqui</translation>
    </message>
    <message>
        <source>This session has no message bus, over which programs hear of each other. Start the tutorial from within a desktop session.</source>
        <translation>Esta sessão não tem um barramento de mensagens, pelo qual os programas se comunicam. Inicie o tutorial em um ambiente de trabalho.</translation>
    </message>
    <message>
        <source>Lumaroo is off</source>
        <translation>O Lumaroo está desligado</translation>
    </message>
    <message>
        <source>The tutorial shows Lumaroo at work, so it has to be on.</source>
        <translation>O tutorial mostra o Lumaroo em ação; para isso, ele precisa estar ligado.</translation>
    </message>
    <message>
        <source>Lumaroo does not start</source>
        <translation>O Lumaroo não inicia</translation>
    </message>
    <message>
        <source>A part of it is missing. Install Lumaroo again.</source>
        <translation>Falta uma parte dele. Instale o Lumaroo novamente.</translation>
    </message>
    <message>
        <source>Lumaroo does not answer</source>
        <translation>O Lumaroo não responde</translation>
    </message>
    <message>
        <source>It is running, but it says nothing. Ask again in a moment, or turn it off and on in its settings.</source>
        <translation>Ele está em execução, mas não diz nada. Pergunte novamente em instantes ou desligue-o e ligue-o nas configurações.</translation>
    </message>
    <message>
        <source>Lumaroo gets no keys here</source>
        <translation>O Lumaroo não recebe teclas aqui</translation>
    </message>
    <message>
        <source>It needs an X11 session. Most desktops offer one where you log in.</source>
        <translation>Ele precisa de uma sessão X11. A maioria dos ambientes de trabalho oferece uma na tela de início de sessão.</translation>
    </message>
    <message>
        <source>No modifier keys are chosen</source>
        <translation>Nenhuma tecla modificadora foi escolhida</translation>
    </message>
    <message>
        <source>Lumaroo's keys are pressed together with modifier keys, and your settings have none.</source>
        <translation>As teclas do Lumaroo são pressionadas junto com teclas modificadoras, e nas suas configurações não há nenhuma.</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>Outro programa ocupa teclas do Lumaroo</translation>
    </message>
    <message>
        <source>With %1, Lumaroo does not get these keys: %2.</source>
        <translation>Com %1, o Lumaroo não recebe estas teclas: %2.</translation>
    </message>
    <message>
        <source>Free them in that program, or choose others in Lumaroo's settings; then ask again.</source>
        <translation>Libere-as nesse programa ou escolha outras nas configurações do Lumaroo; depois pergunte novamente.</translation>
    </message>
    <message>
        <source>If you hold %1 instead, all of Lumaroo's movement keys are free.</source>
        <translation>Se você usar %1, todas as teclas de movimento do Lumaroo estarão livres.</translation>
    </message>
    <message>
        <source>The keys do not work</source>
        <translation>As teclas não funcionam</translation>
    </message>
    <message>
        <source>Choose other keys on the page “Keys” of Lumaroo's settings, then ask again.</source>
        <translation>Escolha outras teclas na página “Teclas” das configurações do Lumaroo e depois pergunte novamente.</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>Não foi possível salvar sua escolha. Talvez o disco esteja cheio.</translation>
    </message>
</context>
</TS>
