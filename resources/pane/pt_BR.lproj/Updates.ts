<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Updates</name>
    <message>
        <source>Lumaroo update</source>
        <translation>Atualização do Lumaroo</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for updates now</source>
        <translation>O Lumaroo não pode procurar atualizações agora</translation>
    </message>
    <message>
        <source>A part of it is missing, or was just replaced by another version. Close the settings, open them again and try once more. If that does not help, install Lumaroo again.</source>
        <translation>Falta uma parte dele ou ela acabou de ser substituída por outra versão. Feche as configurações, abra-as novamente e tente mais uma vez. Se isso não ajudar, instale o Lumaroo novamente.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>&amp;Pular esta versão</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Depois</translation>
    </message>
    <message>
        <source>&amp;Install update</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>&amp;Install and restart</source>
        <translation>&amp;Instalar e reiniciar</translation>
    </message>
    <message>
        <source>&amp;Open its web page</source>
        <translation>&amp;Abrir a página web</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Looking for a new version</source>
        <translation>Procurando uma nova versão</translation>
    </message>
    <message>
        <source>Lumaroo is up to date</source>
        <translation>O Lumaroo está atualizado</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>A versão %1 é a mais recente.</translation>
    </message>
    <message>
        <source>There is an important update: Lumaroo %1</source>
        <translation>Há uma atualização importante: Lumaroo %1</translation>
    </message>
    <message>
        <source>There is a new version: Lumaroo %1</source>
        <translation>Há uma nova versão: Lumaroo %1</translation>
    </message>
    <message>
        <source>It mends something that matters: install it soon.</source>
        <translation>Ela corrige algo importante: instale-a logo.</translation>
    </message>
    <message>
        <source>It can be downloaded and installed now.</source>
        <translation>Ela pode ser baixada e instalada agora.</translation>
    </message>
    <message>
        <source>It is not installed from here. Its web page tells how to get it.</source>
        <translation>Ela não é instalada a partir daqui. A página web diz como obtê-la.</translation>
    </message>
    <message>
        <source>Downloading Lumaroo %1</source>
        <translation>Baixando o Lumaroo %1</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Aguardando o servidor</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Preparing Lumaroo %1</source>
        <translation>Preparando o Lumaroo %1</translation>
    </message>
    <message>
        <source>Checking that it is genuine, and unpacking it</source>
        <translation>Verificando a autenticidade e descompactando</translation>
    </message>
    <message>
        <source>Lumaroo %1 is ready</source>
        <translation>O Lumaroo %1 está pronto</translation>
    </message>
    <message>
        <source>The settings close for a moment and come back with the new version. If you choose Later, it is installed when you close the settings.</source>
        <translation>As configurações se fecham por um momento e voltam com a nova versão. Se você escolher “Depois”, ela será instalada quando você fechar as configurações.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is about to be installed</source>
        <translation>O Lumaroo %1 está prestes a ser instalado</translation>
    </message>
    <message>
        <source>It is installed as soon as the settings are closed. Answer what they still ask, or close them yourself.</source>
        <translation>Ele será instalado assim que as configurações forem fechadas. Responda ao que elas ainda perguntam ou feche-as você mesmo.</translation>
    </message>
    <message>
        <source>Lumaroo %1 is installed</source>
        <translation>O Lumaroo %1 foi instalado</translation>
    </message>
    <message>
        <source>Close the settings and open them again to use it.</source>
        <translation>Feche as configurações e abra-as novamente para usá-lo.</translation>
    </message>
    <message>
        <source>The release notes cannot be shown now.</source>
        <translation>Não é possível mostrar as notas da versão agora.</translation>
    </message>
    <message>
        <source>New versions cannot be looked for now</source>
        <translation>Não é possível procurar novas versões agora</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached, or cannot be read. Check your connection and try again later.</source>
        <translation>A lista de versões não pode ser acessada ou não pode ser lida. Verifique sua conexão e tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update cannot be downloaded</source>
        <translation>Não foi possível baixar a atualização</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Check your connection and try again.</source>
        <translation>Sua versão atual não foi alterada. Verifique sua conexão e tente novamente.</translation>
    </message>
    <message>
        <source>The update cannot be stored</source>
        <translation>Não foi possível salvar a atualização</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Most often the disk is full: make some room and try again.</source>
        <translation>Sua versão atual não foi alterada. Na maioria das vezes, o disco está cheio: libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself</source>
        <translation>Esta cópia do Lumaroo não pode se atualizar sozinha</translation>
    </message>
    <message>
        <source>Whoever built it gave it no key to tell genuine updates by. Get new versions from where you got this one.</source>
        <translation>Ela foi compilada sem a chave que permite reconhecer atualizações autênticas. Obtenha novas versões no mesmo lugar em que obteve esta.</translation>
    </message>
    <message>
        <source>The update is not genuine</source>
        <translation>A atualização não é autêntica</translation>
    </message>
    <message>
        <source>What came is not what the makers of Lumaroo have signed. It was removed, and the version that you have is unchanged. Try again later, best through another network.</source>
        <translation>O que foi baixado não é o que os desenvolvedores do Lumaroo assinaram. Foi removido, e sua versão atual não foi alterada. Tente novamente mais tarde, de preferência por outra rede.</translation>
    </message>
    <message>
        <source>The update is damaged</source>
        <translation>A atualização está danificada</translation>
    </message>
    <message>
        <source>What came cannot be unpacked. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>O que foi baixado não pode ser descompactado. Foi removido, e sua versão atual não foi alterada. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update is not what was announced</source>
        <translation>A atualização não é a que foi anunciada</translation>
    </message>
    <message>
        <source>It does not hold the version that the list of versions tells of. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>Ela não contém a versão indicada na lista de versões. Foi removida, e sua versão atual não foi alterada. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Lumaroo is updated along with your system</source>
        <translation>O Lumaroo é atualizado junto com o sistema</translation>
    </message>
    <message>
        <source>It was installed for everybody who uses this computer. Look for new versions where your system gets its programs and updates.</source>
        <translation>Ele foi instalado para todos os que usam este computador. Procure novas versões onde seu sistema obtém programas e atualizações.</translation>
    </message>
    <message>
        <source>Updates are not installed as root</source>
        <translation>Atualizações não são instaladas como root</translation>
    </message>
    <message>
        <source>Open the settings under your own name and try again.</source>
        <translation>Abra as configurações com seu próprio usuário e tente novamente.</translation>
    </message>
    <message>
        <source>Lumaroo is being updated already</source>
        <translation>O Lumaroo já está sendo atualizado</translation>
    </message>
    <message>
        <source>Another program is about to do it. Wait a moment and try again.</source>
        <translation>Outro programa está cuidando disso. Aguarde um momento e tente novamente.</translation>
    </message>
    <message>
        <source>The update cannot take the old version's place</source>
        <translation>A atualização não pode substituir a versão antiga</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Close the settings, open them again and try once more.</source>
        <translation>Sua versão atual não foi alterada. Feche as configurações, abra-as novamente e tente mais uma vez.</translation>
    </message>
    <message>
        <source>The update was not installed</source>
        <translation>A atualização não foi instalada</translation>
    </message>
    <message>
        <source>The version that you have is unchanged.</source>
        <translation>Sua versão atual não foi alterada.</translation>
    </message>
    <message>
        <source>⚠ Version %1 was not installed.</source>
        <translation>⚠ A versão %1 não foi instalada.</translation>
    </message>
    <message>
        <source>Most often the disk is full: make some room. It is tried again when you close the settings and when you open them.</source>
        <translation>Na maioria das vezes, o disco está cheio: libere espaço. Uma nova tentativa é feita quando você fecha e quando abre as configurações.</translation>
    </message>
    <message>
        <source>Another program was updating Lumaroo just then. It is tried again when you close the settings and when you open them.</source>
        <translation>Outro programa estava atualizando o Lumaroo naquele momento. Uma nova tentativa é feita quando você fecha e quando abre as configurações.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer. New versions come with the updates of the system.</source>
        <translation>O Lumaroo foi instalado para todos os que usam este computador. As novas versões vêm com as atualizações do sistema.</translation>
    </message>
    <message>
        <source>Updates are not installed as root: open the settings under your own name.</source>
        <translation>Atualizações não são instaladas como root: abra as configurações com seu próprio usuário.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo has no key to tell genuine updates by, so that the update was removed. Get new versions from where you got this one.</source>
        <translation>Esta cópia do Lumaroo não tem a chave que permite reconhecer atualizações autênticas; por isso, a atualização foi removida. Obtenha novas versões no mesmo lugar em que obteve esta.</translation>
    </message>
    <message>
        <source>It was not what the makers of Lumaroo have signed, and was removed. Check again, best through another network.</source>
        <translation>O que foi baixado não é o que os desenvolvedores do Lumaroo assinaram e foi removido. Verifique novamente, de preferência por outra rede.</translation>
    </message>
    <message>
        <source>What had been downloaded was damaged or gone. Check again to have it downloaded once more.</source>
        <translation>O que tinha sido baixado estava danificado ou não existia mais. Verifique novamente para baixar outra vez.</translation>
    </message>
    <message>
        <source>It did not hold the version that was announced, and was removed. Check again later.</source>
        <translation>Ela não continha a versão anunciada e foi removida. Verifique novamente mais tarde.</translation>
    </message>
    <message>
        <source>It could not take the old version's place. It is tried again when you close the settings and when you open them.</source>
        <translation>Ela não pôde substituir a versão antiga. Uma nova tentativa é feita quando você fecha e quando abre as configurações.</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself. Get new versions from where you got this one.</source>
        <translation>Esta cópia do Lumaroo não pode se atualizar sozinha. Obtenha novas versões no mesmo lugar em que obteve esta.</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer: updates come with the system's updates.</source>
        <translation>O Lumaroo foi instalado para todos os que usam este computador: as novas versões vêm com as atualizações do sistema.</translation>
    </message>
    <message>
        <source>Nothing is looked for as root: open the settings under your own name.</source>
        <translation>Nada é procurado como root: abra as configurações com seu próprio usuário.</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for new versions.</source>
        <translation>O Lumaroo não pode procurar novas versões.</translation>
    </message>
    <message>
        <source>It is not installed from here. Get it from where you got the version that you have.</source>
        <translation>Ela não é instalada a partir daqui. Obtenha-a no mesmo lugar em que obteve sua versão atual.</translation>
    </message>
    <message>
        <source>The web page cannot be opened from here. Its address is: %1</source>
        <translation>Não é possível abrir a página web a partir daqui. O endereço é: %1</translation>
    </message>
</context>
</TS>
