<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>LumarooPref</name>
    <message>
        <source>&amp;General</source>
        <translation>全般(&amp;G)</translation>
    </message>
    <message>
        <source>Turn Lumaroo on or off</source>
        <translation>Lumaroo のオン/オフを切り替える</translation>
    </message>
    <message>
        <source>&amp;Lumaroo runs in the background. It stays on when you close this window.</source>
        <translation>&amp;Lumaroo はバックグラウンドで動作します。このウィンドウを閉じてもオンのままです。</translation>
    </message>
    <message>
        <source>What to do next</source>
        <translation>次にすること</translation>
    </message>
    <message>
        <source>Hold the modifier keys and press a movement key. Lumaroo marks a window; each further press moves the mark to the next window.</source>
        <translation>修飾キーを押したまま移動キーを押します。Lumaroo がウィンドウに印を付け、押すたびに次のウィンドウへ印が移ります。</translation>
    </message>
    <message>
        <source>Let go of the modifier keys, and you are in the marked window.</source>
        <translation>修飾キーを放すと、印の付いたウィンドウに移ります。</translation>
    </message>
    <message>
        <source>You see and choose all these keys on the page “Keys”.</source>
        <translation>これらのキーはすべて「キー」ページで確認して選べます。</translation>
    </message>
    <message>
        <source>New to Lumaroo</source>
        <translation>はじめてお使いの方へ</translation>
    </message>
    <message>
        <source>&amp;Start the tutorial</source>
        <translation>チュートリアルを開始(&amp;S)</translation>
    </message>
    <message>
        <source>The tutorial shows the keys at work. It turns Lumaroo on if it is off.</source>
        <translation>チュートリアルではキーの使い方を実際に試せます。Lumaroo がオフのときはオンにします。</translation>
    </message>
    <message>
        <source>Help about turning Lumaroo on</source>
        <translation>Lumaroo をオンにする方法のヘルプ</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>キー(&amp;K)</translation>
    </message>
    <message>
        <source>Modifier keys</source>
        <translation>修飾キー</translation>
    </message>
    <message>
        <source>Sh&amp;ift ⇧</source>
        <translation>Sh&amp;ift ⇧</translation>
    </message>
    <message>
        <source>&amp;Control ⌃</source>
        <translation>&amp;Ctrl ⌃</translation>
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
        <translation>使用中の修飾キー</translation>
    </message>
    <message>
        <source>Hold these while you press one of the keys below.</source>
        <translation>これらを押したまま、下のいずれかのキーを押します。</translation>
    </message>
    <message>
        <source>Movement keys</source>
        <translation>移動キー</translation>
    </message>
    <message>
        <source>Help about movement keys</source>
        <translation>移動キーのヘルプ</translation>
    </message>
    <message>
        <source>This key is used more than once.</source>
        <translation>このキーは複数の操作に使われています。</translation>
    </message>
    <message>
        <source>Click here, then press the new key</source>
        <translation>ここをクリックして、新しいキーを押します</translation>
    </message>
    <message>
        <source>Key to move up</source>
        <translation>上へ移動するキー</translation>
    </message>
    <message>
        <source>Press a key</source>
        <translation>キーを押してください</translation>
    </message>
    <message>
        <source>Key to move right</source>
        <translation>右へ移動するキー</translation>
    </message>
    <message>
        <source>Key to move down</source>
        <translation>下へ移動するキー</translation>
    </message>
    <message>
        <source>Key to move left</source>
        <translation>左へ移動するキー</translation>
    </message>
    <message>
        <source>Key to move to the window under the marked one</source>
        <translation>印の付いたウィンドウの背後のウィンドウへ移動するキー</translation>
    </message>
    <message>
        <source>U&amp;p</source>
        <translation>上(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>右(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>下(&amp;D)</translation>
    </message>
    <message>
        <source>Le&amp;ft</source>
        <translation>左(&amp;F)</translation>
    </message>
    <message>
        <source>U&amp;nder</source>
        <translation>背後(&amp;N)</translation>
    </message>
    <message>
        <source>Action keys</source>
        <translation>操作キー</translation>
    </message>
    <message>
        <source>Help about action keys</source>
        <translation>操作キーのヘルプ</translation>
    </message>
    <message>
        <source>Key to open these settings</source>
        <translation>この設定を開くキー</translation>
    </message>
    <message>
        <source>Key to make a screenshot</source>
        <translation>スクリーンショットを撮るキー</translation>
    </message>
    <message>
        <source>Key to close the window</source>
        <translation>ウィンドウを閉じるキー</translation>
    </message>
    <message>
        <source>Key to show a preview</source>
        <translation>プレビューを表示するキー</translation>
    </message>
    <message>
        <source>Key to cancel the selection</source>
        <translation>選択をキャンセルするキー</translation>
    </message>
    <message>
        <source>Key to jump to the selection</source>
        <translation>選択したウィンドウに移るキー</translation>
    </message>
    <message>
        <source>&amp;Open these settings</source>
        <translation>この設定を開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Make a screenshot</source>
        <translation>スクリーンショットを撮る(&amp;M)</translation>
    </message>
    <message>
        <source>Close the &amp;window</source>
        <translation>ウィンドウを閉じる(&amp;W)</translation>
    </message>
    <message>
        <source>Show a pre&amp;view</source>
        <translation>プレビューを表示(&amp;V)</translation>
    </message>
    <message>
        <source>Cancel the &amp;selection</source>
        <translation>選択をキャンセル(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Jump to the selection</source>
        <translation>選択したウィンドウに移る(&amp;J)</translation>
    </message>
    <message>
        <source>To change a key, click it and press the new one. To try a key, press it with the modifier keys. A warning sign stands beside a key that is used twice.</source>
        <translation>キーを変更するには、クリックしてから新しいキーを押します。キーを試すには、修飾キーと一緒に押します。複数の操作に使われているキーの横には警告の印が付きます。</translation>
    </message>
    <message>
        <source>&amp;Behavior</source>
        <translation>動作(&amp;B)</translation>
    </message>
    <message>
        <source>Order of windows</source>
        <translation>ウィンドウの順序</translation>
    </message>
    <message>
        <source>&amp;Left and right, go by:</source>
        <translation>左右の基準(&amp;L):</translation>
    </message>
    <message>
        <source>First selected window</source>
        <translation>開始時のウィンドウ</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Leading edge</source>
        <translation>移動方向側の端</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Up and &amp;down, go by:</source>
        <translation>上下の基準(&amp;D):</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>上端</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>下端</translation>
    </message>
    <message>
        <source>The key Under &amp;cycles:</source>
        <translation>「背後」キーの順序(&amp;C):</translation>
    </message>
    <message>
        <source>Up the stack</source>
        <translation>重なりの上へ</translation>
    </message>
    <message>
        <source>Down the stack</source>
        <translation>重なりの下へ</translation>
    </message>
    <message>
        <source>Down the stack goes from a window to the one that it covers, up the stack the other way.</source>
        <translation>「下へ」では、あるウィンドウからそれが隠しているウィンドウへ進みます。「上へ」ではその逆です。</translation>
    </message>
    <message>
        <source>The leading edge is the one that faces the way you move.</source>
        <translation>移動方向側の端とは、移動する向きにある端です。</translation>
    </message>
    <message>
        <source>&amp;Wrap around at the left and right edges of the screen</source>
        <translation>画面の左右の端で反対側に回り込む(&amp;W)</translation>
    </message>
    <message>
        <source>Wrap around at the top and botto&amp;m edges of the screen</source>
        <translation>画面の上下の端で反対側に回り込む(&amp;M)</translation>
    </message>
    <message>
        <source>Staying active</source>
        <translation>アクティブ状態の維持</translation>
    </message>
    <message>
        <source>Acti&amp;vate only by pressing the modifier keys twice</source>
        <translation>修飾キーを 2 回押したときだけアクティブにする(&amp;V)</translation>
    </message>
    <message>
        <source>Lumaroo then takes no combination from other programs, and always stays active.</source>
        <translation>オンにすると、Lumaroo はほかのプログラムのキーの組み合わせを奪わず、常にアクティブなままになります。</translation>
    </message>
    <message>
        <source>Keep Lumaroo active:</source>
        <translation>Lumaroo をアクティブに保つ:</translation>
    </message>
    <message>
        <source>Keep Lumaroo active</source>
        <translation>Lumaroo をアクティブに保つ</translation>
    </message>
    <message>
        <source>Modi&amp;fier keys pressed twice</source>
        <translation>修飾キーを 2 回押したとき(&amp;F)</translation>
    </message>
    <message>
        <source>M&amp;odifier keys pressed once</source>
        <translation>修飾キーを 1 回押したとき(&amp;O)</translation>
    </message>
    <message>
        <source>An active Lumaroo waits until you choose a window or cancel.</source>
        <translation>アクティブな Lumaroo は、ウィンドウを選ぶかキャンセルするまで待ちます。</translation>
    </message>
    <message>
        <source>Key repeat</source>
        <translation>キーリピート</translation>
    </message>
    <message>
        <source>Re&amp;peat while a movement key is held</source>
        <translation>移動キーを押している間リピートする(&amp;P)</translation>
    </message>
    <message>
        <source>D&amp;elay before the first repeat:</source>
        <translation>リピート開始まで(&amp;E):</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短い</translation>
    </message>
    <message>
        <source>Delay before the first repeat</source>
        <translation>リピート開始までの時間</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>長い</translation>
    </message>
    <message>
        <source>Repeat &amp;speed:</source>
        <translation>リピート速度(&amp;S):</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>遅い</translation>
    </message>
    <message>
        <source>Repeat speed</source>
        <translation>リピート速度</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>速い</translation>
    </message>
    <message>
        <source>Hold an arrow key here.</source>
        <translation>ここで矢印キーを押し続けます。</translation>
    </message>
    <message>
        <source>Try the key repeat</source>
        <translation>キーリピートを試す</translation>
    </message>
    <message>
        <source>Click the windows, then hold an arrow key.</source>
        <translation>ウィンドウをクリックし、矢印キーを押し続けます。</translation>
    </message>
    <message>
        <source>Try &amp;it:</source>
        <translation>試してみる(&amp;I):</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>色(&amp;R):</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>オーバーレイの色</translation>
    </message>
    <message>
        <source>Choose the color of the overlay</source>
        <translation>オーバーレイの色を選択</translation>
    </message>
    <message>
        <source>Use s&amp;ystem color</source>
        <translation>システムの色を使う(&amp;Y)</translation>
    </message>
    <message>
        <source>A&amp;nimate the overlay</source>
        <translation>オーバーレイをアニメーション表示(&amp;N)</translation>
    </message>
    <message>
        <source>The overlay will move and change gradually instead of at once.</source>
        <translation>オーバーレイが一度にではなく、なめらかに動いて変化します。</translation>
    </message>
    <message>
        <source>Help about the order of windows</source>
        <translation>ウィンドウの順序のヘルプ</translation>
    </message>
    <message>
        <source>&amp;Updates</source>
        <translation>アップデート(&amp;U)</translation>
    </message>
    <message>
        <source>Automatic check</source>
        <translation>自動確認</translation>
    </message>
    <message>
        <source>&amp;Check for new versions automatically</source>
        <translation>新しいバージョンを自動的に確認する(&amp;C)</translation>
    </message>
    <message>
        <source>Lumaroo looks once a day and asks before it installs anything.</source>
        <translation>Lumaroo は 1 日に 1 回確認し、インストールする前に必ず尋ねます。</translation>
    </message>
    <message>
        <source>Check by hand</source>
        <translation>手動確認</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>今すぐ確認(&amp;N)</translation>
    </message>
    <message>
        <source>State of updates</source>
        <translation>アップデートの状態</translation>
    </message>
    <message>
        <source>Last successful check: %1</source>
        <translation>最後に成功した確認: %1</translation>
    </message>
    <message>
        <source>Last successful check: never</source>
        <translation>最後に成功した確認: なし</translation>
    </message>
    <message>
        <source>Version %1 is ready. It is installed when you close the settings.</source>
        <translation>バージョン %1 の準備ができました。設定を閉じるとインストールされます。</translation>
    </message>
    <message>
        <source>No new version is waiting to be installed.</source>
        <translation>インストールを待っている新しいバージョンはありません。</translation>
    </message>
    <message>
        <source>⚠ For 30 days Lumaroo could not find out about new versions. Check the connection to the Internet, or look on the web site.</source>
        <translation>⚠ Lumaroo は 30 日間、新しいバージョンの有無を確認できていません。インターネットへの接続を確認するか、Web サイトをご覧ください。</translation>
    </message>
    <message>
        <source>Help about updates</source>
        <translation>アップデートのヘルプ</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Without a mou&amp;se</source>
        <translation>マウスを使わない操作(&amp;S)</translation>
    </message>
    <message>
        <source>Al&amp;erts</source>
        <translation>警告(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Order of windows</source>
        <translation>ウィンドウの順序(&amp;O)</translation>
    </message>
    <message>
        <source>A&amp;ction keys</source>
        <translation>操作キー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Movement keys</source>
        <translation>移動キー(&amp;M)</translation>
    </message>
    <message>
        <source>Turning &amp;Lumaroo on</source>
        <translation>&amp;Lumaroo をオンにする</translation>
    </message>
    <message>
        <source>Read in the help</source>
        <translation>ヘルプで読む</translation>
    </message>
    <message>
        <source>Your keys</source>
        <translation>お使いのキー</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Visit the &amp;web page</source>
        <translation>Web ページを見る(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Feedback on the web</source>
        <translation>Web でフィードバック(&amp;F)</translation>
    </message>
    <message>
        <source>Send &amp;feedback…</source>
        <translation>フィードバックを送信(&amp;F)…</translation>
    </message>
    <message>
        <source>Help about using Lumaroo without a mouse</source>
        <translation>マウスを使わない操作のヘルプ</translation>
    </message>
    <message>
        <source>Abou&amp;t</source>
        <translation>情報(&amp;T)</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>クレジット</translation>
    </message>
    <message>
        <source>Copyright © 2026 The Lumaroo developers</source>
        <translation>Copyright © 2026 Lumaroo 開発者</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>色 いろ カラー</translation>
    </message>
    <message>
        <source>More help</source>
        <translation>その他のヘルプ</translation>
    </message>
    <message>
        <source>What is new in Lumaroo</source>
        <translation>Lumaroo の新機能</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>&amp;Do not show this again for this version</source>
        <translation>このバージョンについて今後表示しない(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Start Lumaroo at l&amp;ogin</source>
        <translation>ログイン時に Lumaroo を起動する(&amp;O)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Restore all keys</source>
        <translation>すべてのキーを元に戻す</translation>
    </message>
</context>
</TS>
