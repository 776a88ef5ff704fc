<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Updates</name>
    <message>
        <source>Lumaroo update</source>
        <translation>Lumaroo のアップデート</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for updates now</source>
        <translation>現在、Lumaroo はアップデートを確認できません</translation>
    </message>
    <message>
        <source>A part of it is missing, or was just replaced by another version. Close the settings, open them again and try once more. If that does not help, install Lumaroo again.</source>
        <translation>一部が見つからないか、別のバージョンに置き換えられたところです。設定をいったん閉じて開き直し、もう一度お試しください。それでも解決しない場合は、Lumaroo をインストールし直してください。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>今回はスキップ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Install update</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Install and restart</source>
        <translation>インストールして再起動(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Open its web page</source>
        <translation>Web ページを開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Looking for a new version</source>
        <translation>新しいバージョンを確認しています</translation>
    </message>
    <message>
        <source>Lumaroo is up to date</source>
        <translation>Lumaroo は最新です</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <translation>バージョン %1 が最新です。</translation>
    </message>
    <message>
        <source>There is an important update: Lumaroo %1</source>
        <translation>重要なアップデートがあります: Lumaroo %1</translation>
    </message>
    <message>
        <source>There is a new version: Lumaroo %1</source>
        <translation>新しいバージョンがあります: Lumaroo %1</translation>
    </message>
    <message>
        <source>It mends something that matters: install it soon.</source>
        <translation>重要な問題が修正されています。早めにインストールしてください。</translation>
    </message>
    <message>
        <source>It can be downloaded and installed now.</source>
        <translation>今すぐダウンロードしてインストールできます。</translation>
    </message>
    <message>
        <source>It is not installed from here. Its web page tells how to get it.</source>
        <translation>ここからはインストールできません。入手方法は Web ページに記載されています。</translation>
    </message>
    <message>
        <source>Downloading Lumaroo %1</source>
        <translation>Lumaroo %1 をダウンロードしています</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>サーバーを待っています</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Preparing Lumaroo %1</source>
        <translation>Lumaroo %1 を準備しています</translation>
    </message>
    <message>
        <source>Checking that it is genuine, and unpacking it</source>
        <translation>正規のものか確認し、展開しています</translation>
    </message>
    <message>
        <source>Lumaroo %1 is ready</source>
        <translation>Lumaroo %1 の準備ができました</translation>
    </message>
    <message>
        <source>The settings close for a moment and come back with the new version. If you choose Later, it is installed when you close the settings.</source>
        <translation>設定がいったん閉じ、新しいバージョンで再び開きます。「後で」を選ぶと、設定を閉じたときにインストールされます。</translation>
    </message>
    <message>
        <source>Lumaroo %1 is about to be installed</source>
        <translation>まもなく Lumaroo %1 をインストールします</translation>
    </message>
    <message>
        <source>It is installed as soon as the settings are closed. Answer what they still ask, or close them yourself.</source>
        <translation>設定が閉じるとすぐにインストールされます。設定からの確認に答えるか、設定を閉じてください。</translation>
    </message>
    <message>
        <source>Lumaroo %1 is installed</source>
        <translation>Lumaroo %1 をインストールしました</translation>
    </message>
    <message>
        <source>Close the settings and open them again to use it.</source>
        <translation>使用するには、設定をいったん閉じて開き直してください。</translation>
    </message>
    <message>
        <source>The release notes cannot be shown now.</source>
        <translation>現在、リリースノートを表示できません。</translation>
    </message>
    <message>
        <source>New versions cannot be looked for now</source>
        <translation>現在、新しいバージョンを確認できません</translation>
    </message>
    <message>
        <source>The list of versions cannot be reached, or cannot be read. Check your connection and try again later.</source>
        <translation>バージョンの一覧に接続できないか、一覧を読み取れません。接続を確認し、後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update cannot be downloaded</source>
        <translation>アップデートをダウンロードできません</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Check your connection and try again.</source>
        <translation>お使いのバージョンに変更はありません。接続を確認し、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update cannot be stored</source>
        <translation>アップデートを保存できません</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Most often the disk is full: make some room and try again.</source>
        <translation>お使いのバージョンに変更はありません。多くの場合、ディスクの空きがないことが原因です。空きを作ってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself</source>
        <translation>この Lumaroo は自身をアップデートできません</translation>
    </message>
    <message>
        <source>Whoever built it gave it no key to tell genuine updates by. Get new versions from where you got this one.</source>
        <translation>正規のアップデートを見分ける鍵なしでビルドされています。新しいバージョンは、この Lumaroo の入手元から入手してください。</translation>
    </message>
    <message>
        <source>The update is not genuine</source>
        <translation>アップデートが正規のものではありません</translation>
    </message>
    <message>
        <source>What came is not what the makers of Lumaroo have signed. It was removed, and the version that you have is unchanged. Try again later, best through another network.</source>
        <translation>ダウンロードしたものは Lumaroo の開発者が署名したものではありません。削除しました。お使いのバージョンに変更はありません。後で、できれば別のネットワークからお試しください。</translation>
    </message>
    <message>
        <source>The update is damaged</source>
        <translation>アップデートが壊れています</translation>
    </message>
    <message>
        <source>What came cannot be unpacked. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>ダウンロードしたものを展開できません。削除しました。お使いのバージョンに変更はありません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update is not what was announced</source>
        <translation>アップデートが告知されたものと異なります</translation>
    </message>
    <message>
        <source>It does not hold the version that the list of versions tells of. It was removed, and the version that you have is unchanged. Try again later.</source>
        <translation>バージョンの一覧にあるバージョンが含まれていません。削除しました。お使いのバージョンに変更はありません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Lumaroo is updated along with your system</source>
        <translation>Lumaroo はシステムと一緒にアップデートされます</translation>
    </message>
    <message>
        <source>It was installed for everybody who uses this computer. Look for new versions where your system gets its programs and updates.</source>
        <translation>このコンピューターのすべての利用者のためにインストールされています。新しいバージョンは、システムがプログラムや更新を入手する場所で確認してください。</translation>
    </message>
    <message>
        <source>Updates are not installed as root</source>
        <translation>root ではアップデートをインストールできません</translation>
    </message>
    <message>
        <source>Open the settings under your own name and try again.</source>
        <translation>ご自分のユーザーで設定を開き、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Lumaroo is being updated already</source>
        <translation>Lumaroo はすでにアップデート中です</translation>
    </message>
    <message>
        <source>Another program is about to do it. Wait a moment and try again.</source>
        <translation>ほかのプログラムがアップデートしています。しばらく待ってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update cannot take the old version's place</source>
        <translation>アップデートを古いバージョンと入れ替えられません</translation>
    </message>
    <message>
        <source>The version that you have is unchanged. Close the settings, open them again and try once more.</source>
        <translation>お使いのバージョンに変更はありません。設定をいったん閉じて開き直し、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update was not installed</source>
        <translation>アップデートはインストールされませんでした</translation>
    </message>
    <message>
        <source>The version that you have is unchanged.</source>
        <translation>お使いのバージョンに変更はありません。</translation>
    </message>
    <message>
        <source>⚠ Version %1 was not installed.</source>
        <translation>⚠ バージョン %1 はインストールされませんでした。</translation>
    </message>
    <message>
        <source>Most often the disk is full: make some room. It is tried again when you close the settings and when you open them.</source>
        <translation>多くの場合、ディスクの空きがないことが原因です。空きを作ってください。設定を閉じるときと開くときに再試行します。</translation>
    </message>
    <message>
        <source>Another program was updating Lumaroo just then. It is tried again when you close the settings and when you open them.</source>
        <translation>そのときほかのプログラムが Lumaroo をアップデートしていました。設定を閉じるときと開くときに再試行します。</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer. New versions come with the updates of the system.</source>
        <translation>Lumaroo はこのコンピューターのすべての利用者のためにインストールされています。新しいバージョンはシステムの更新で提供されます。</translation>
    </message>
    <message>
        <source>Updates are not installed as root: open the settings under your own name.</source>
        <translation>root ではアップデートをインストールできません。ご自分のユーザーで設定を開いてください。</translation>
    </message>
    <message>
        <source>This copy of Lumaroo has no key to tell genuine updates by, so that the update was removed. Get new versions from where you got this one.</source>
        <translation>この Lumaroo には正規のアップデートを見分ける鍵がないため、アップデートを削除しました。新しいバージョンは、この Lumaroo の入手元から入手してください。</translation>
    </message>
    <message>
        <source>It was not what the makers of Lumaroo have signed, and was removed. Check again, best through another network.</source>
        <translation>Lumaroo の開発者が署名したものではないため、削除しました。できれば別のネットワークから、もう一度確認してください。</translation>
    </message>
    <message>
        <source>What had been downloaded was damaged or gone. Check again to have it downloaded once more.</source>
        <translation>ダウンロードしたものが壊れているか、なくなっていました。もう一度確認すると、再びダウンロードします。</translation>
    </message>
    <message>
        <source>It did not hold the version that was announced, and was removed. Check again later.</source>
        <translation>告知されたバージョンが含まれていなかったため、削除しました。後でもう一度確認してください。</translation>
    </message>
    <message>
        <source>It could not take the old version's place. It is tried again when you close the settings and when you open them.</source>
        <translation>古いバージョンと入れ替えられませんでした。設定を閉じるときと開くときに再試行します。</translation>
    </message>
    <message>
        <source>This copy of Lumaroo cannot update itself. Get new versions from where you got this one.</source>
        <translation>この Lumaroo は自身をアップデートできません。新しいバージョンは、この Lumaroo の入手元から入手してください。</translation>
    </message>
    <message>
        <source>Lumaroo was installed for everybody who uses this computer: updates come with the system's updates.</source>
        <translation>Lumaroo はこのコンピューターのすべての利用者のためにインストールされているため、新しいバージョンはシステムの更新で提供されます。</translation>
    </message>
    <message>
        <source>Nothing is looked for as root: open the settings under your own name.</source>
        <translation>root では何も確認しません。ご自分のユーザーで設定を開いてください。</translation>
    </message>
    <message>
        <source>Lumaroo cannot look for new versions.</source>
        <translation>Lumaroo は新しいバージョンを確認できません。</translation>
    </message>
    <message>
        <source>It is not installed from here. Get it from where you got the version that you have.</source>
        <translation>ここからはインストールできません。お使いのバージョンの入手元から入手してください。</translation>
    </message>
    <message>
        <source>The web page cannot be opened from here. Its address is: %1</source>
        <translation>ここから Web ページを開けません。アドレス: %1</translation>
    </message>
</context>
</TS>
