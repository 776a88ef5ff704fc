<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Tutorial</name>
    <message>
        <source>Lumaroo tutorial</source>
        <translation>Lumaroo のチュートリアル</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Skip this step</source>
        <translation>このステップをスキップ(&amp;S)</translation>
    </message>
    <message>
        <source>Go on &amp;without these keys</source>
        <translation>これらのキーなしで続ける(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Leave the tutorial</source>
        <translation>チュートリアルを終了(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Once more</source>
        <translation>もう一度(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Turn Lumaroo on</source>
        <translation>Lumaroo をオンにする(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>再確認(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Use %1</source>
        <translation>%1 を使う(&amp;U)</translation>
    </message>
    <message>
        <source>Page Down skips a step, Page Up goes back, Escape leaves the tutorial.</source>
        <translation>Page Down でステップをスキップ、Page Up で戻る、Esc でチュートリアルを終了します。</translation>
    </message>
    <message>
        <source>Escape leaves the tutorial.</source>
        <translation>Esc でチュートリアルを終了します。</translation>
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
        <translation>丸</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>四角</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>三角</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>星</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>then</source>
        <translation>次に</translation>
    </message>
    <message>
        <source>twice, then</source>
        <translation>を 2 回、次に</translation>
    </message>
    <message>
        <source>Go to the next window</source>
        <translation>隣のウィンドウへ移動する</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. A frame goes to the next window; let go to be there.</source>
        <translation>%1 を押したまま %2 を押します。枠が隣のウィンドウに移ります。キーを放すと、そのウィンドウに移ります。</translation>
    </message>
    <message>
        <source>There it is. Now let go of %1.</source>
        <translation>枠が移りました。%1 を放してください。</translation>
    </message>
    <message>
        <source>Press %1 twice and let go. Then press %2: a frame goes to the next window. %3 takes you there.</source>
        <translation>%1 を 2 回押して放します。次に %2 を押すと、枠が隣のウィンドウに移ります。%3 でそのウィンドウに移ります。</translation>
    </message>
    <message>
        <source>There it is. Now press %3.</source>
        <translation>枠が移りました。%3 を押してください。</translation>
    </message>
    <message>
        <source>You are in the next window.</source>
        <translation>隣のウィンドウに移りました。</translation>
    </message>
    <message>
        <source>Go round the edge</source>
        <translation>端を越えて移動する</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Hold %1 and press %2 once: the frame goes round to the circle. Then let go.</source>
        <translation>三角は列の最後にあります。%1 を押したまま %2 を 1 回押すと、枠が反対側の丸に回り込みます。そこでキーを放します。</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the circle.</source>
        <translation>枠が丸を囲んだら %1 を放してください。</translation>
    </message>
    <message>
        <source>The triangle is the last in its row. Press %1 twice, then %2 once: the frame goes round to the circle. Then press %3.</source>
        <translation>三角は列の最後にあります。%1 を 2 回押してから %2 を 1 回押すと、枠が反対側の丸に回り込みます。そこで %3 を押します。</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the circle.</source>
        <translation>枠が丸を囲んだら %3 を押してください。</translation>
    </message>
    <message>
        <source>Round the edge, and back at the row's beginning.</source>
        <translation>端を越えて、列の先頭に戻りました。</translation>
    </message>
    <message>
        <source>Reach a window that is covered</source>
        <translation>隠れているウィンドウに移動する</translation>
    </message>
    <message>
        <source>A star lies under the square. Hold %1 and press %2: the frame goes to what is underneath. Then let go.</source>
        <translation>四角の下に星があります。%1 を押したまま %2 を押すと、枠がその下のウィンドウに移ります。そこでキーを放します。</translation>
    </message>
    <message>
        <source>Let go of %1 when the frame is around the star.</source>
        <translation>枠が星を囲んだら %1 を放してください。</translation>
    </message>
    <message>
        <source>A star lies under the square. Press %1 twice, then %2: the frame goes to what is underneath. Then press %3.</source>
        <translation>四角の下に星があります。%1 を 2 回押してから %2 を押すと、枠がその下のウィンドウに移ります。そこで %3 を押します。</translation>
    </message>
    <message>
        <source>Press %3 when the frame is around the star.</source>
        <translation>枠が星を囲んだら %3 を押してください。</translation>
    </message>
    <message>
        <source>There is the star.</source>
        <translation>星が現れました。</translation>
    </message>
    <message>
        <source>It may take several presses: your settings go through the windows upwards.</source>
        <translation>何回か押すことがあります。現在の設定では、ウィンドウを下から上へたどります。</translation>
    </message>
    <message>
        <source>Change your mind</source>
        <translation>途中でやめる</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. Before you let go, press %3: nothing will have changed.</source>
        <translation>%1 を押したまま %2 を押します。放す前に %3 を押すと、何も変わりません。</translation>
    </message>
    <message>
        <source>Now press %3 while you hold %1.</source>
        <translation>%1 を押したまま %3 を押してください。</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. Now press %3: nothing will have changed.</source>
        <translation>%1 を 2 回押してから %2 を押します。ここで %3 を押すと、何も変わりません。</translation>
    </message>
    <message>
        <source>Now press %3.</source>
        <translation>%3 を押してください。</translation>
    </message>
    <message>
        <source>You are where you were.</source>
        <translation>元のウィンドウのままです。</translation>
    </message>
    <message>
        <source>Go further</source>
        <translation>さらに先へ移動する</translation>
    </message>
    <message>
        <source>Hold %1 and press %2 until the frame is around the triangle. Then press %3, or just let go.</source>
        <translation>枠が三角を囲むまで、%1 を押したまま %2 を押します。次に %3 を押すか、そのままキーを放します。</translation>
    </message>
    <message>
        <source>At the triangle, press %3 or let go.</source>
        <translation>三角で %3 を押すか、キーを放してください。</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2 until the frame is around the triangle. Then press %3.</source>
        <translation>%1 を 2 回押してから、枠が三角を囲むまで %2 を押します。次に %3 を押します。</translation>
    </message>
    <message>
        <source>At the triangle, press %3.</source>
        <translation>三角で %3 を押してください。</translation>
    </message>
    <message>
        <source>You are at the triangle.</source>
        <translation>三角に移りました。</translation>
    </message>
    <message>
        <source>Do something with a window</source>
        <translation>ウィンドウを操作する</translation>
    </message>
    <message>
        <source>Hold %1 and press %2. That closes the window you are in, here the star.</source>
        <translation>%1 を押したまま %2 を押します。今いるウィンドウ (ここでは星) が閉じます。</translation>
    </message>
    <message>
        <source>Let go, and press %2 with %1 in the star.</source>
        <translation>キーを放し、星で %1 を押したまま %2 を押してください。</translation>
    </message>
    <message>
        <source>Press %1 twice, then %2. That closes the window you are in, here the star.</source>
        <translation>%1 を 2 回押してから %2 を押します。今いるウィンドウ (ここでは星) が閉じます。</translation>
    </message>
    <message>
        <source>Now press %2.</source>
        <translation>%2 を押してください。</translation>
    </message>
    <message>
        <source>The star is closed.</source>
        <translation>星が閉じました。</translation>
    </message>
    <message>
        <source>That came too late. Press %3 while the frame is there.</source>
        <translation>遅すぎました。枠が出ている間に %3 を押してください。</translation>
    </message>
    <message>
        <source>That led somewhere else. Try once more from here.</source>
        <translation>別の場所に移りました。ここからもう一度試してください。</translation>
    </message>
    <message>
        <source>That is all it takes</source>
        <translation>これで終わりです</translation>
    </message>
    <message>
        <source>These keys work in every program. All of them can be changed in Lumaroo's settings, where you find this tutorial again.</source>
        <translation>これらのキーはどのプログラムでも使えます。すべて Lumaroo の設定で変更できます。このチュートリアルも設定から開けます。</translation>
    </message>
    <message>
        <source>One moment</source>
        <translation>お待ちください</translation>
    </message>
    <message>
        <source>Lumaroo is asked for its keys.</source>
        <translation>Lumaroo にキーを問い合わせています。</translation>
    </message>
    <message>
        <source>The tutorial does not work here</source>
        <translation>ここではチュートリアルを使えません</translation>
    </message>
    <message>
        <source>This session has no message bus, over which programs hear of each other. Start the tutorial from within a desktop session.</source>
        <translation>このセッションには、プログラム同士が連絡し合うためのメッセージバスがありません。デスクトップセッションの中でチュートリアルを開始してください。</translation>
    </message>
    <message>
        <source>Lumaroo is off</source>
        <translation>Lumaroo はオフです</translation>
    </message>
    <message>
        <source>The tutorial shows Lumaroo at work, so it has to be on.</source>
        <translation>チュートリアルでは Lumaroo を実際に動かすため、オンにする必要があります。</translation>
    </message>
    <message>
        <source>Lumaroo does not start</source>
        <translation>Lumaroo が起動しません</translation>
    </message>
    <message>
        <source>A part of it is missing. Install Lumaroo again.</source>
        <translation>一部が見つかりません。Lumaroo をインストールし直してください。</translation>
    </message>
    <message>
        <source>Lumaroo does not answer</source>
        <translation>Lumaroo が応答しません</translation>
    </message>
    <message>
        <source>It is running, but it says nothing. Ask again in a moment, or turn it off and on in its settings.</source>
        <translation>動作していますが、応答がありません。しばらくしてから再確認するか、設定でオフにしてからオンにしてください。</translation>
    </message>
    <message>
        <source>Lumaroo gets no keys here</source>
        <translation>ここでは Lumaroo がキーを受け取れません</translation>
    </message>
    <message>
        <source>It needs an X11 session. Most desktops offer one where you log in.</source>
        <translation>X11 セッションが必要です。ほとんどのデスクトップでは、ログイン時に選べます。</translation>
    </message>
    <message>
        <source>No modifier keys are chosen</source>
        <translation>修飾キーが選択されていません</translation>
    </message>
    <message>
        <source>Lumaroo's keys are pressed together with modifier keys, and your settings have none.</source>
        <translation>Lumaroo のキーは修飾キーと一緒に押しますが、設定で修飾キーが選択されていません。</translation>
    </message>
    <message>
        <source>Another program holds Lumaroo's keys</source>
        <translation>ほかのプログラムが Lumaroo のキーを使っています</translation>
    </message>
    <message>
        <source>With %1, Lumaroo does not get these keys: %2.</source>
        <translation>%1 では、Lumaroo は次のキーを受け取れません: %2。</translation>
    </message>
    <message>
        <source>Free them in that program, or choose others in Lumaroo's settings; then ask again.</source>
        <translation>そのプログラムでキーを解放するか、Lumaroo の設定で別のキーを選んでから、再確認してください。</translation>
    </message>
    <message>
        <source>If you hold %1 instead, all of Lumaroo's movement keys are free.</source>
        <translation>代わりに %1 を使うと、Lumaroo の移動キーがすべて空いています。</translation>
    </message>
    <message>
        <source>The keys do not work</source>
        <translation>キーが使えません</translation>
    </message>
    <message>
        <source>Choose other keys on the page “Keys” of Lumaroo's settings, then ask again.</source>
        <translation>Lumaroo の設定の「キー」ページで別のキーを選んでから、再確認してください。</translation>
    </message>
    <message>
        <source>Your choice could not be stored. The disk may be full.</source>
        <translation>選択を保存できませんでした。ディスクに空きがない可能性があります。</translation>
    </message>
</context>
</TS>
