<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::ViewControllers::ScanController</name>
    <message>
        <source>Quillmont Orbwell have successfully installed Orbwell plugin to %0.</source>
        <translation>Quillmont Orbwell は次のシミュレーターに Orbwell プラグインを正常にインストールしました: %0</translation>
    </message>
    <message>
        <source>Orbwell plugin is installed in all simulators.</source>
        <translation>Orbwell プラグインはすべてのシミュレーターにインストールされています。</translation>
    </message>
    <message>
        <source>There are no other simulator found for install Orbwell plugin.</source>
        <translation>Orbwell プラグインのインストール先となるシミュレーターは、ほかに見つかりませんでした。</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Quillmont Orbwell の設定</translation>
    </message>
    <message>
        <source>Unable to copy &apos;%0&apos; to &apos;%1&apos;. Please check if you have permission to folder &apos;%2&apos;.<byte value="xd"/>
</source>
        <translation>「%0」を「%1」にコピーできません。フォルダー「%2」へのアクセス許可があるか確認してください。<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Installation complete</source>
        <translation>インストール完了</translation>
    </message>
    <message>
        <source>Installation</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to install your Orbwell plugin to %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell は %0 に Orbwell プラグインをインストールできませんでした。<byte value="xd"/>
<byte value="xd"/>
詳細については、以下の一覧をご覧ください:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Plugins %0</source>
        <translation>プラグイン: %0</translation>
    </message>
    <message>
        <source>Quillmont Orbwell has %1 plugins on your computer.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%0</source>
        <translation>Quillmont Orbwell がお使いのコンピューター上のプラグインを変更しました (%1)。<byte value="xd"/>
<byte value="xd"/>
詳細については、以下の一覧をご覧ください:<byte value="xd"/>
<byte value="xd"/>
%0</translation>
    </message>
    <message>
        <source>The file &apos;%0&apos; is empty. Quillmont Orbwell installer was not able to change your configuration.</source>
        <translation>ファイル「%0」は空です。Quillmont Orbwell インストーラーは構成を変更できませんでした。</translation>
    </message>
    <message>
        <source>Unable to write configuration to file &apos;%0&apos;. Please check if you have permission to that file.</source>
        <translation>ファイル「%0」に構成を書き込めません。このファイルへのアクセス許可があるか確認してください。</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>Quillmont Orbwell for %0 has been uninstalled successfully.</source>
        <translation>%0 用の Quillmont Orbwell は正常にアンインストールされました。</translation>
    </message>
    <message>
        <source>Unable to remove file &apos;%0&apos; from %1. Please remove the file manually.<byte value="xd"/>
</source>
        <translation>%1 からファイル「%0」を削除できません。ファイルを手動で削除してください。<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Quillmont Orbwell was not able to uninstall your Orbwell plugin from %0.<byte value="xd"/>
<byte value="xd"/>
Please see the list below for details:<byte value="xd"/>
<byte value="xd"/>
%1</source>
        <translation>Quillmont Orbwell は %0 から Orbwell プラグインをアンインストールできませんでした。<byte value="xd"/>
<byte value="xd"/>
詳細については、以下の一覧をご覧ください:<byte value="xd"/>
<byte value="xd"/>
%1</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Views::ScannerView</name>
    <message>
        <source>Quillmont Orbwell Settings</source>
        <translation>Quillmont Orbwell の設定</translation>
    </message>
    <message>
        <source>Orbwell will automatically detect your simulators and install the plugin in each. Please verify below. To manually scan and install again, press &quot;Scan &amp; Install&quot; below.</source>
        <translation>Orbwell はシミュレーターを自動的に検出し、それぞれにプラグインをインストールします。以下の一覧をご確認ください。手動でもう一度スキャンしてインストールするには、下の「スキャン &amp; インストール」ボタンを押してください。</translation>
    </message>
    <message>
        <source>Simulators</source>
        <translation>シミュレーター</translation>
    </message>
    <message>
        <source>There are no simulators to show. The file flightsims.json beside this program is missing, empty or damaged. Please install Quillmont Orbwell again.</source>
        <translation>表示するシミュレーターがありません。このプログラムと同じ場所にあるはずのファイル flightsims.json が見つからないか、空であるか、破損しています。Quillmont Orbwell をもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>Scan &amp;&amp; Install</source>
        <translation>スキャン &amp;&amp; インストール</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message numerus="yes">
        <source>Scan found %0 flight simulators installed.</source>
        <translation>
            <numerusform>スキャンの結果、インストール済みのフライトシミュレーターが %0 個見つかりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Scan found 1 flight simulator installed.</source>
        <translation>スキャンの結果、インストール済みのフライトシミュレーターが 1 個見つかりました。</translation>
    </message>
    <message>
        <source>Quillmont Orbwell Setup cannot find any flight simulator. Please map manually.</source>
        <translation>Quillmont Orbwell セットアップはフライトシミュレーターを検出できませんでした。フォルダーを手動で指定してください。</translation>
    </message>
    <message>
        <source>Scan completed</source>
        <translation>スキャン完了</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Widgets::AddonListItem</name>
    <message>
        <source>Path not set</source>
        <translation>パス未設定</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Folder of %0</source>
        <translation>%0 のフォルダー</translation>
    </message>
    <message>
        <source>Choose the folder of %0</source>
        <translation>%0 のフォルダーを選択</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Invalid path</source>
        <translation>無効なパス</translation>
    </message>
    <message>
        <source>This path is invalid</source>
        <translation>このパスは無効です</translation>
    </message>
    <message>
        <source>This simulator was not found. If you have it, press &quot;...&quot; and choose its folder.</source>
        <translation>このシミュレーターは見つかりませんでした。お持ちの場合は、「...」ボタンを押してそのフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Uninstall Orbwell</source>
        <translation>Orbwell をアンインストール</translation>
    </message>
    <message>
        <source>Install Orbwell</source>
        <translation>Orbwell をインストール</translation>
    </message>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>Folder not known</source>
        <translation>フォルダー不明</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>フォルダーが見つかりません</translation>
    </message>
    <message>
        <source>Orbwell is installed</source>
        <translation>Orbwell はインストールされています</translation>
    </message>
    <message>
        <source>Orbwell is not installed</source>
        <translation>Orbwell はインストールされていません</translation>
    </message>
</context>
</TS>
