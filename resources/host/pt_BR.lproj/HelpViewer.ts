<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>HelpViewer</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Diminuir o texto</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Aumentar o texto</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Pesquisar na ajuda</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Conteúdo</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Páginas encontradas</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Páginas encontradas: %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Nenhuma página contém todas essas palavras.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Pesquisando…</translation>
    </message>
    <message>
        <source>This help is not available</source>
        <translation>Esta ajuda não está disponível</translation>
    </message>
    <message>
        <source>Its book is missing or damaged. Installing the program again brings it back.</source>
        <translation>O livro de ajuda não foi encontrado ou está danificado. Instale o programa novamente para recuperá-lo.</translation>
    </message>
    <message>
        <source>The web page cannot be opened: %1</source>
        <translation>Não foi possível abrir a página web: %1</translation>
    </message>
</context>
</TS>
