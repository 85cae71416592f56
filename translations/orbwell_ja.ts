<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Quillmont::Utility::Doctor::Advice</name>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>自分に読み取り権限を付与してください。</translation>
    </message>
    <message>
        <source>Move it away, or make it smaller by hand.</source>
        <translation>別の場所に移すか、手動で小さくしてください。</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>別の場所に移してください。</translation>
    </message>
    <message>
        <source>Mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>ファイルを手動で修復してください。それまでこのファイルは変更されず、シミュレーターがアドオンを 1 つも読み込まない可能性があります。</translation>
    </message>
    <message>
        <source>Put the backup of %1 back, or mend the file by hand; until then nothing is changed in it, and the simulator may load no add-on at all.</source>
        <translation>%1 のバックアップを復元するか、ファイルを手動で修復してください。それまでこのファイルは変更されず、シミュレーターがアドオンを 1 つも読み込まない可能性があります。</translation>
    </message>
    <message>
        <source>Move it away; until then the simulator may load no add-on at all.</source>
        <translation>別の場所に移してください。それまでシミュレーターがアドオンを 1 つも読み込まない可能性があります。</translation>
    </message>
    <message>
        <source>Put the backup of %1 back; until then the simulator may load no add-on at all.</source>
        <translation>%1 のバックアップを復元してください。それまでシミュレーターがアドオンを 1 つも読み込まない可能性があります。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::CatalogueCheck</name>
    <message>
        <source>It is no JSON: %1. The program sees no simulator.</source>
        <translation>JSON ではありません: %1。シミュレーターは 1 つも認識されません。</translation>
    </message>
    <message>
        <source>It is no array. The program sees no simulator.</source>
        <translation>配列ではありません。シミュレーターは 1 つも認識されません。</translation>
    </message>
    <message>
        <source>The key is there twice; the last one counts.</source>
        <translation>このキーは重複しています。最後のものが使われます。</translation>
    </message>
    <message>
        <source>Unknown key; it is ignored.</source>
        <translation>不明なキーです。無視されます。</translation>
    </message>
    <message>
        <source>Its type is %1, not %2; it counts as missing.</source>
        <translation>型が %2 ではなく %1 です。値はないものとして扱われます。</translation>
    </message>
    <message>
        <source>The simulator has no name.</source>
        <translation>シミュレーターに名前がありません。</translation>
    </message>
    <message>
        <source>Line %1 has the same name; both share one record and one chosen folder.</source>
        <translation>%1 行目と同じ名前です。インストール記録と選択したフォルダーが両方で共有されます。</translation>
    </message>
    <message>
        <source>There are no files; nothing is installed, and it counts as installed.</source>
        <translation>ファイルの指定がありません。何もインストールされませんが、インストール済みとして扱われます。</translation>
    </message>
    <message>
        <source>The payload has no file %1; it cannot be copied.</source>
        <translation>同梱ファイルに %1 がないため、コピーできません。</translation>
    </message>
    <message>
        <source>There is no destination; it is the simulator&apos;s folder itself.</source>
        <translation>コピー先の指定がありません。シミュレーターのフォルダー自体がコピー先になります。</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the simulator&apos;s folder; the file is written there.</source>
        <translation>&quot;..&quot; がシミュレーターのフォルダーの外を指しています。ファイルはそこに書き込まれます。</translation>
    </message>
    <message>
        <source>Another file has the same destination; the later one is copied.</source>
        <translation>別のファイルと同じコピー先です。後のものがコピーされます。</translation>
    </message>
    <message>
        <source>It is only read beside a &quot;config&quot; that is null or not empty; it is ignored.</source>
        <translation>&quot;config&quot; が null の場合か、空でない場合にのみ読み取られます。ここでは無視されます。</translation>
    </message>
    <message>
        <source>&quot;type&quot; is not 0, so no configuration file is touched.</source>
        <translation>&quot;type&quot; が 0 でないため、構成ファイルは変更されません。</translation>
    </message>
    <message>
        <source>There is no path; no file can be edited.</source>
        <translation>パスの指定がないため、ファイルを編集できません。</translation>
    </message>
    <message>
        <source>Without &quot;parent&quot; and &quot;values&quot; no entry is added.</source>
        <translation>&quot;parent&quot; と &quot;values&quot; がないと、エントリは追加されません。</translation>
    </message>
    <message>
        <source>This entry installs, but cannot be removed: no pair of &quot;values&quot; is what &quot;remove&quot; looks for.</source>
        <translation>このエントリはインストールできますが、削除できません。&quot;remove&quot; が探すものと一致する組が &quot;values&quot; にありません。</translation>
    </message>
    <message>
        <source>Only the child element is removed, and the rest of the entry stays: &quot;delete_parent&quot; is not true.</source>
        <translation>子要素だけが削除され、エントリのほかの部分は残ります。&quot;delete_parent&quot; が true ではありません。</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>問題はありません。</translation>
    </message>
    <message>
        <source>It is no whole number; it counts as 0.</source>
        <translation>整数ではありません。0 として扱われます。</translation>
    </message>
    <message>
        <source>There is no such location; the entry itself never finds anything.</source>
        <translation>そのような &quot;location&quot; はありません。このエントリ自体では何も検出されません。</translation>
    </message>
    <message>
        <source>It shares its chosen folder with the name in line %1.</source>
        <translation>選択したフォルダーが %1 行目の名前と共有されます。</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the payload.</source>
        <translation>&quot;..&quot; が同梱ファイルのフォルダーの外を指しています。</translation>
    </message>
    <message>
        <source>Without &quot;config&quot; no configuration file is touched.</source>
        <translation>&quot;config&quot; がないと、構成ファイルは変更されません。</translation>
    </message>
    <message>
        <source>&quot;..&quot; leads out of the folder of such files.</source>
        <translation>&quot;..&quot; がこの種のファイルのフォルダーの外を指しています。</translation>
    </message>
    <message>
        <source>XML cannot hold this; the entry is never added.</source>
        <translation>XML に含めることができないため、エントリは追加されません。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::ConfigurationCheck</name>
    <message>
        <source>The simulator has no Proton prefix, so its configuration file is unknown.</source>
        <translation>シミュレーターに Proton プレフィックスがないため、構成ファイルの場所がわかりません。</translation>
    </message>
    <message>
        <source>Start the simulator once from Steam, then install again.</source>
        <translation>Steam からシミュレーターを一度起動してから、もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>そこに書き込む権限を自分に付与してください。</translation>
    </message>
    <message>
        <source>The configuration file %1 is missing.</source>
        <translation>構成ファイル %1 がありません。</translation>
    </message>
    <message>
        <source>Uninstall and install again; the file is made anew.</source>
        <translation>アンインストールしてから、もう一度インストールしてください。ファイルが新しく作成されます。</translation>
    </message>
    <message>
        <source>The configuration file %1 cannot be read: %2.</source>
        <translation>構成ファイル %1 を読み取れません: %2。</translation>
    </message>
    <message>
        <source>The configuration file %1 is damaged. %2</source>
        <translation>構成ファイル %1 は破損しています。%2</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>アンインストールしてから、もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The plugin&apos;s files are there, but %1 has no entry for it.</source>
        <translation>プラグインのファイルはありますが、%1 にそのエントリがありません。</translation>
    </message>
    <message>
        <source>%1 has an entry for the plugin, whose files are not there.</source>
        <translation>%1 にプラグインのエントリがありますが、プラグインのファイルがありません。</translation>
    </message>
    <message>
        <source>Install it, or uninstall it to take the entry out.</source>
        <translation>インストールするか、アンインストールしてエントリを削除してください。</translation>
    </message>
    <message>
        <source>Our entry is in %1 %2 times.</source>
        <translation>プラグインのエントリが %1 に %2 個あります。</translation>
    </message>
    <message>
        <source>Our entry in %1 is disabled.</source>
        <translation>%1 のプラグインのエントリが無効になっています。</translation>
    </message>
    <message>
        <source>Our entry in %1 names the file %2, which is missing.</source>
        <translation>%1 のプラグインのエントリが指すファイル %2 がありません。</translation>
    </message>
    <message>
        <source>The configuration file %1 is a web page.</source>
        <translation>構成ファイル %1 は Web ページです。</translation>
    </message>
    <message>
        <source>The configuration file cannot be made: %1 is a link that leads nowhere.</source>
        <translation>構成ファイルを作成できません。%1 はリンク先のないリンクです。</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>リンクを削除してから、インストールしてください。</translation>
    </message>
    <message>
        <source>You may not change the configuration file %1, or not write in its folder.</source>
        <translation>構成ファイル %1 を変更する権限、またはそのフォルダーに書き込む権限がありません。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Doctor</name>
    <message>
        <source>The catalogue %1 is no JSON array; --check-catalogue says more.</source>
        <translation>カタログ %1 は JSON 配列ではありません。詳しくは --check-catalogue で確認できます。</translation>
    </message>
    <message>
        <source>The catalogue has no simulator %1.</source>
        <translation>カタログにシミュレーター %1 はありません。</translation>
    </message>
    <message>
        <source>Try &quot;orbwell-doctor --help&quot;.</source>
        <translation>詳しくは &quot;orbwell-doctor --help&quot; を実行してください。</translation>
    </message>
    <message>
        <source>The answer cannot be written: %1.</source>
        <translation>結果を出力できません: %1。</translation>
    </message>
    <message>
        <source>The catalogue %1 cannot be read: %2.</source>
        <translation>カタログ %1 を読み取れません: %2。</translation>
    </message>
    <message>
        <source>The catalogue %1 is empty.</source>
        <translation>カタログ %1 は空です。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Examination</name>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>シミュレーターのフォルダー %1 がなくなっています。</translation>
    </message>
    <message>
        <source>Choose its folder in the window.</source>
        <translation>ウィンドウでフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>%1 はファイルで、フォルダーではありません。</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>%1 のあるディスクの空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>The disk has room for %1 bytes; what is written there takes %2.</source>
        <translation>ディスクの空き容量は %1 バイトですが、書き込みには %2 バイト必要です。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::FilesCheck</name>
    <message>
        <source>The payload lacks %1, so it cannot be installed.</source>
        <translation>同梱ファイルに %1 がないため、インストールできません。</translation>
    </message>
    <message>
        <source>Install this program again, or complete its &quot;plugins&quot; folder.</source>
        <translation>このプログラムをもう一度インストールするか、&quot;plugins&quot; フォルダーの不足を補ってください。</translation>
    </message>
    <message>
        <source>Uninstall and install again.</source>
        <translation>アンインストールしてから、もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>In the place of %1 is a link that leads nowhere.</source>
        <translation>%1 の場所に、リンク先のないリンクがあります。</translation>
    </message>
    <message>
        <source>Delete the link, then install.</source>
        <translation>リンクを削除してから、インストールしてください。</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>%1 は通常のファイルではありません。</translation>
    </message>
    <message>
        <source>Move it away, then install.</source>
        <translation>そこにあるものを別の場所に移してから、インストールしてください。</translation>
    </message>
    <message>
        <source>Only a part of the plugin is there; %1 is missing.</source>
        <translation>プラグインの一部しかありません。%1 がありません。</translation>
    </message>
    <message>
        <source>Install it.</source>
        <translation>インストールしてください。</translation>
    </message>
    <message>
        <source>%1 differs from the file that comes with this program: another version, or damaged.</source>
        <translation>%1 は、このプログラムに同梱されているファイルと異なります。別のバージョンであるか、破損しています。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読み取れません。</translation>
    </message>
    <message>
        <source>You may not write in the folder of %1.</source>
        <translation>%1 のフォルダーに書き込む権限がありません。</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>そのフォルダーに書き込む権限を自分に付与してください。</translation>
    </message>
    <message>
        <source>You may not read %1, so it cannot be installed.</source>
        <translation>%1 を読み取る権限がないため、インストールできません。</translation>
    </message>
    <message>
        <source>Give yourself the right to read it.</source>
        <translation>自分に読み取り権限を付与してください。</translation>
    </message>
    <message>
        <source>In the place of the folder %1 is a link that leads nowhere.</source>
        <translation>フォルダー %1 の場所に、リンク先のないリンクがあります。</translation>
    </message>
    <message>
        <source>%1 is a file where a folder has to be.</source>
        <translation>%1 はファイルですが、ここにはフォルダーが必要です。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Options</name>
    <message>
        <source>%1: a plan is for &quot;install&quot;, &quot;repair&quot; or &quot;uninstall&quot;.</source>
        <translation>%1: 計画に指定できるのは &quot;install&quot;、&quot;repair&quot;、&quot;uninstall&quot; のいずれかです。</translation>
    </message>
    <message>
        <source>--catalogue needs a file.</source>
        <translation>--catalogue にはファイルの指定が必要です。</translation>
    </message>
    <message>
        <source>Unknown option %1.</source>
        <translation>不明なオプション %1 です。</translation>
    </message>
    <message>
        <source>Unknown option %1. Is %2 meant?</source>
        <translation>不明なオプション %1 です。%2 のことですか?</translation>
    </message>
    <message>
        <source>Usage: orbwell-doctor [OPTION...] [NAME...]
Says what is wrong with the simulators and the Orbwell plugin in them. Changes nothing.

  --json               the report, plan or check as JSON
  --plan[=WHAT]        what an &quot;install&quot; (the default), &quot;repair&quot; or &quot;uninstall&quot; would do
  --catalogue FILE     use another catalogue, and the folder &quot;plugins&quot; beside it, if any
  --check-catalogue    only what is wrong in the catalogue
  --help, --version

NAMEs limit the report or the plan to those simulators.
Status: 0 nothing wrong, 1 something wrong, 2 it could not look.
</source>
        <translation>使い方: orbwell-doctor [オプション...] [名前...]
シミュレーターと、そこにある Orbwell プラグインの問題を示します。何も変更しません。

  --json               レポート、計画、検査結果を JSON で出力
  --plan[=操作]        &quot;install&quot; (既定)、&quot;repair&quot;、&quot;uninstall&quot; で行われる内容を表示
  --catalogue ファイル 別のカタログと、その隣に &quot;plugins&quot; フォルダーがあればそれを使用
  --check-catalogue    カタログの問題だけを表示
  --help, --version

名前を指定すると、レポートや計画の対象をそのシミュレーターに限定します。
終了ステータス: 0 問題なし、1 問題あり、2 確認できなかった
</translation>
    </message>
    <message>
        <source>--check-catalogue takes no names.</source>
        <translation>--check-catalogue に名前は指定できません。</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 と %2 は同時に指定できません。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Plan</name>
    <message>
        <source>No simulator is found, so nothing would change.</source>
        <translation>シミュレーターが見つからないため、何も変わりません。</translation>
    </message>
    <message>
        <source>Folder made: %1</source>
        <translation>作成するフォルダー: %1</translation>
    </message>
    <message>
        <source>Folder removed: %1</source>
        <translation>削除するフォルダー: %1</translation>
    </message>
    <message>
        <source>Backup made: %1</source>
        <translation>作成するバックアップ: %1</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>問題: %1</translation>
    </message>
    <message>
        <source>%1: install in %2</source>
        <translation>%1: %2 にインストール</translation>
    </message>
    <message>
        <source>%1: repair in %2</source>
        <translation>%1: %2 を修復</translation>
    </message>
    <message>
        <source>%1: uninstall in %2</source>
        <translation>%1: %2 からアンインストール</translation>
    </message>
    <message>
        <source>File made: %1</source>
        <translation>作成するファイル: %1</translation>
    </message>
    <message>
        <source>File replaced: %1</source>
        <translation>置き換えるファイル: %1</translation>
    </message>
    <message>
        <source>File unchanged: %1</source>
        <translation>変わらないファイル: %1</translation>
    </message>
    <message>
        <source>File removed: %1</source>
        <translation>削除するファイル: %1</translation>
    </message>
    <message>
        <source>Configuration made: %1</source>
        <translation>作成する構成ファイル: %1</translation>
    </message>
    <message>
        <source>Configuration changed: %1</source>
        <translation>変更する構成ファイル: %1</translation>
    </message>
    <message>
        <source>Configuration unchanged: %1</source>
        <translation>変わらない構成ファイル: %1</translation>
    </message>
    <message>
        <source>Record made: %1</source>
        <translation>作成するインストール記録: %1</translation>
    </message>
    <message>
        <source>Record changed: %1</source>
        <translation>変更するインストール記録: %1</translation>
    </message>
    <message>
        <source>Record unchanged: %1</source>
        <translation>変わらないインストール記録: %1</translation>
    </message>
    <message>
        <source>Its folder %1 is gone.</source>
        <translation>シミュレーターのフォルダー %1 がなくなっています。</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Install Orbwell&quot;</source>
        <translation>ウィンドウのボタン: 「Orbwell をインストール」</translation>
    </message>
    <message>
        <source>Button in the window: &quot;Uninstall Orbwell&quot;</source>
        <translation>ウィンドウのボタン: 「Orbwell をアンインストール」</translation>
    </message>
    <message>
        <source>Button in the window: disabled</source>
        <translation>ウィンドウのボタン: 無効</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Reasons</name>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>%1 行目 %2 列目: %3</translation>
    </message>
    <message>
        <source>X-Plane&apos;s own list</source>
        <translation>X-Plane 自身の一覧</translation>
    </message>
    <message>
        <source>FlightGear&apos;s launcher</source>
        <translation>FlightGear のランチャー</translation>
    </message>
    <message>
        <source>a well-known folder</source>
        <translation>一般的なフォルダー</translation>
    </message>
    <message>
        <source>UserCfg.opt in Steam&apos;s Proton prefix</source>
        <translation>Steam の Proton プレフィックス内の UserCfg.opt</translation>
    </message>
    <message>
        <source>chosen by hand</source>
        <translation>手動で選択</translation>
    </message>
    <message>
        <source>the catalogue&apos;s file</source>
        <translation>カタログのファイル</translation>
    </message>
    <message>
        <source>the catalogue&apos;s folder</source>
        <translation>カタログのフォルダー</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>フォルダーがありません</translation>
    </message>
    <message>
        <source>not an absolute path</source>
        <translation>絶対パスではありません</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>no permission to look inside</source>
        <translation>中を見る権限がありません</translation>
    </message>
    <message>
        <source>no file &quot;version&quot; that begins with a version number</source>
        <translation>バージョン番号で始まるファイル &quot;version&quot; がありません</translation>
    </message>
    <message>
        <source>no defaults.xml or preferences.xml</source>
        <translation>defaults.xml も preferences.xml もありません</translation>
    </message>
    <message>
        <source>no InstalledPackagesPath in it</source>
        <translation>InstalledPackagesPath がありません</translation>
    </message>
    <message>
        <source>its InstalledPackagesPath does not begin with a drive</source>
        <translation>InstalledPackagesPath がドライブ名で始まっていません</translation>
    </message>
    <message>
        <source>no Community, Official/Steam or Official/OneStore</source>
        <translation>Community も Official/Steam も Official/OneStore もありません</translation>
    </message>
    <message>
        <source>no Community, Official2024 or StreamedPackages</source>
        <translation>Community も Official2024 も StreamedPackages もありません</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>too much to read altogether</source>
        <translation>読み取る量の合計が多すぎます</translation>
    </message>
    <message>
        <source>no fsx.exe</source>
        <translation>fsx.exe がありません</translation>
    </message>
    <message>
        <source>no SimObjects</source>
        <translation>SimObjects がありません</translation>
    </message>
    <message>
        <source>no scenery</source>
        <translation>scenery がありません</translation>
    </message>
    <message>
        <source>no aircraft</source>
        <translation>aircraft がありません</translation>
    </message>
    <message>
        <source>no main.mcf or tm.log</source>
        <translation>main.mcf も tm.log もありません</translation>
    </message>
    <message>
        <source>it has no Proton prefix</source>
        <translation>Proton プレフィックスがありません</translation>
    </message>
    <message>
        <source>no list of libraries</source>
        <translation>ライブラリの一覧ではありません</translation>
    </message>
    <message>
        <source>cut off, or not in Steam&apos;s text format</source>
        <translation>途中で切れているか、Steam のテキスト形式ではありません</translation>
    </message>
    <message>
        <source>uninstalled (StateFlags %1)</source>
        <translation>アンインストール済みです (StateFlags %1)</translation>
    </message>
    <message>
        <source>not fully installed (StateFlags %1)</source>
        <translation>インストールが完了していません (StateFlags %1)</translation>
    </message>
    <message>
        <source>no AppState in it</source>
        <translation>AppState がありません</translation>
    </message>
    <message>
        <source>it is about another game</source>
        <translation>別のゲームについてのものです</translation>
    </message>
    <message>
        <source>installdir is not a plain name</source>
        <translation>installdir が単純な名前ではありません</translation>
    </message>
    <message>
        <source>no Resources/plugins</source>
        <translation>Resources/plugins がありません</translation>
    </message>
    <message>
        <source>no X-Plane executable</source>
        <translation>X-Plane の実行ファイルがありません</translation>
    </message>
    <message>
        <source>it is X-Plane %1</source>
        <translation>X-Plane %1 です</translation>
    </message>
    <message>
        <source>it is taken as %1</source>
        <translation>すでに %1 として使用されています</translation>
    </message>
    <message>
        <source>Second byte-order mark.</source>
        <translation>2 つ目のバイトオーダーマークです。</translation>
    </message>
    <message>
        <source>Invalid entity name.</source>
        <translation>無効なエンティティ名です。</translation>
    </message>
    <message>
        <source>Invalid processing instruction name.</source>
        <translation>無効な処理命令名です。</translation>
    </message>
    <message>
        <source>Invalid XML declaration.</source>
        <translation>無効な XML 宣言です。</translation>
    </message>
    <message>
        <source>Invalid character reference.</source>
        <translation>無効な文字参照です。</translation>
    </message>
    <message>
        <source>Invalid element name.</source>
        <translation>無効な要素名です。</translation>
    </message>
    <message>
        <source>Invalid attribute name.</source>
        <translation>無効な属性名です。</translation>
    </message>
    <message>
        <source>Invalid character in the document type declaration.</source>
        <translation>文書型宣言に無効な文字があります。</translation>
    </message>
    <message>
        <source>Entities grow to too much text.</source>
        <translation>エンティティの展開結果が大きくなりすぎます。</translation>
    </message>
    <message>
        <source>No XML has this character.</source>
        <translation>XML で使用できない文字です。</translation>
    </message>
    <message>
        <source>The root element is not where it should be.</source>
        <translation>ルート要素があるべき場所にありません。</translation>
    </message>
    <message>
        <source>The entry to change comes out of an entity.</source>
        <translation>変更するエントリがエンティティに由来しています。</translation>
    </message>
    <message>
        <source>The element to remove comes out of an entity.</source>
        <translation>削除する要素がエンティティに由来しています。</translation>
    </message>
    <message>
        <source>Undecodable bytes would be read otherwise.</source>
        <translation>デコードできないバイトが別のものとして読み取られてしまいます。</translation>
    </message>
    <message>
        <source>A value is no text that XML can hold.</source>
        <translation>XML に書けない値があります。</translation>
    </message>
    <message>
        <source>The element to change comes out of an entity.</source>
        <translation>変更する要素がエンティティに由来しています。</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold an end tag.</source>
        <translation>ファイルの文字コードでは終了タグを表せません。</translation>
    </message>
    <message>
        <source>A name or a value is none that XML can hold.</source>
        <translation>XML に書けない名前または値があります。</translation>
    </message>
    <message>
        <source>The file&apos;s encoding cannot hold a name.</source>
        <translation>ファイルの文字コードでは名前を表せません。</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>too big</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>its name is not valid text</source>
        <translation>名前が有効なテキストではありません</translation>
    </message>
    <message>
        <source>the catalogue&apos;s location</source>
        <translation>カタログの &quot;location&quot;</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>no registry on this system</source>
        <translation>このシステムにレジストリはありません</translation>
    </message>
    <message>
        <source>looked for on Windows only</source>
        <translation>Windows でのみ検索されます</translation>
    </message>
    <message>
        <source>no such &quot;location&quot;</source>
        <translation>そのような &quot;location&quot; はありません</translation>
    </message>
    <message>
        <source>another one was chosen by hand</source>
        <translation>別のフォルダーが手動で選択されています</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::RecordCheck</name>
    <message>
        <source>The installation record %1 cannot be read: %2.</source>
        <translation>インストール記録 %1 を読み取れません: %2。</translation>
    </message>
    <message>
        <source>The installation record %1 is damaged; what it said is lost.</source>
        <translation>インストール記録 %1 は破損しています。その内容は失われました。</translation>
    </message>
    <message>
        <source>Install again; a new record is written then.</source>
        <translation>もう一度インストールしてください。新しいインストール記録が書き込まれます。</translation>
    </message>
    <message>
        <source>The plugin is there, but not in the installation record.</source>
        <translation>プラグインはありますが、インストール記録にありません。</translation>
    </message>
    <message>
        <source>Press &quot;Scan &amp; Install&quot; in the window; it is recorded then.</source>
        <translation>ウィンドウの「スキャン &amp; インストール」ボタンを押してください。インストール記録に追加されます。</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, but files are missing there.</source>
        <translation>インストール記録ではプラグインは %1 にありますが、そこにあるはずのファイルが不足しています。</translation>
    </message>
    <message>
        <source>Install it again.</source>
        <translation>もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>The installation record has the plugin in %1, not in %2. Unattended runs work on the first, the window on the second.</source>
        <translation>インストール記録ではプラグインは %1 にあり、%2 にはありません。無人実行は前者、ウィンドウは後者のフォルダーを対象にします。</translation>
    </message>
    <message>
        <source>Choose the folder in the window, then install or uninstall there.</source>
        <translation>ウィンドウでフォルダーを選択してから、そこでインストールまたはアンインストールしてください。</translation>
    </message>
    <message>
        <source>The installation record has %1 in %2, which the catalogue no longer knows.</source>
        <translation>インストール記録に %1 (%2) がありますが、カタログにはもうありません。</translation>
    </message>
    <message>
        <source>Remove the plugin there by hand, if it is no longer wanted.</source>
        <translation>不要であれば、そこからプラグインを手動で削除してください。</translation>
    </message>
    <message>
        <source>Nothing can be recorded: %1 is a link that leads nowhere.</source>
        <translation>インストール記録に何も書き込めません。%1 はリンク先のないリンクです。</translation>
    </message>
    <message>
        <source>Delete the link.</source>
        <translation>リンクを削除してください。</translation>
    </message>
    <message>
        <source>You may not write the installation record %1.</source>
        <translation>インストール記録 %1 に書き込む権限がありません。</translation>
    </message>
    <message>
        <source>Give yourself the right to write there.</source>
        <translation>そこに書き込む権限を自分に付与してください。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::Rehearsal</name>
    <message>
        <source>%1 is a folder, and stays.</source>
        <translation>%1 はフォルダーなので、そのまま残ります。</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: a folder, or a link that leads nowhere, is in its place.</source>
        <translation>%1 を %2 にコピーできません。その場所にフォルダーか、リンク先のないリンクがあります。</translation>
    </message>
    <message>
        <source>%1 cannot be copied: the payload lacks it. What is in its place goes all the same.</source>
        <translation>%1 をコピーできません。同梱ファイルにありません。それでも、その場所にあるものは削除されます。</translation>
    </message>
    <message>
        <source>%1 stays as it is: %2</source>
        <translation>%1 は変更されません: %2</translation>
    </message>
    <message>
        <source>The record %1 stays as it is: %2</source>
        <translation>インストール記録 %1 は変更されません: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied to %2: you may not write there, or the folder is missing.</source>
        <translation>%1 を %2 にコピーできません。そこに書き込む権限がないか、フォルダーがありません。</translation>
    </message>
    <message>
        <source>%1 cannot be copied: you may not read it. What is in its place goes all the same.</source>
        <translation>%1 をコピーできません。読み取る権限がありません。それでも、その場所にあるものは削除されます。</translation>
    </message>
    <message>
        <source>No backup of %1 can be made: you may not write in its folder.</source>
        <translation>%1 のバックアップを作成できません。そのフォルダーに書き込む権限がありません。</translation>
    </message>
    <message>
        <source>%1 cannot be made: you may not write there, or the folder is missing.</source>
        <translation>%1 を作成できません。そこに書き込む権限がないか、フォルダーがありません。</translation>
    </message>
    <message>
        <source>%1 stays as it is: you may not change it, or not write in its folder.</source>
        <translation>%1 は変更されません: 変更する権限、またはそのフォルダーに書き込む権限がありません。</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::TextReport</name>
    <message>
        <source>The catalogue has no simulator.</source>
        <translation>カタログにシミュレーターがありません。</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>問題: %1</translation>
    </message>
    <message>
        <source>%1: not found on this computer</source>
        <translation>%1: このコンピューターでは見つかりませんでした</translation>
    </message>
    <message>
        <source>%1: the plugin is installed</source>
        <translation>%1: プラグインはインストールされています</translation>
    </message>
    <message>
        <source>%1: only a part of the plugin is installed</source>
        <translation>%1: プラグインの一部だけがインストールされています</translation>
    </message>
    <message>
        <source>%1: the plugin is not installed</source>
        <translation>%1: プラグインはインストールされていません</translation>
    </message>
    <message>
        <source>Folder: %1, known by: %2</source>
        <translation>フォルダー: %1、情報源: %2</translation>
    </message>
    <message>
        <source>Gave %1 up to %2, which found the same folder</source>
        <translation>フォルダー %1 を、同じフォルダーを検出した %2 に譲りました</translation>
    </message>
    <message>
        <source>Turned down: %1 (%2): %3</source>
        <translation>除外: %1 (%2): %3</translation>
    </message>
    <message>
        <source>Files installed: %1</source>
        <translation>インストール済みのファイル: %1</translation>
    </message>
    <message>
        <source>Files missing: %1</source>
        <translation>不足しているファイル: %1</translation>
    </message>
    <message>
        <source>Files different: %1</source>
        <translation>異なるファイル: %1</translation>
    </message>
    <message>
        <source>Files unreadable: %1</source>
        <translation>読み取れないファイル: %1</translation>
    </message>
    <message>
        <source>Dead links in place of files: %1</source>
        <translation>ファイルの場所にあるリンク先のないリンク: %1</translation>
    </message>
    <message>
        <source>Folders or devices in place of files: %1</source>
        <translation>ファイルの場所にあるフォルダーやデバイス: %1</translation>
    </message>
    <message>
        <source>Bytes that are not valid in this encoding, from line %1 on</source>
        <translation>%1 行目以降に、この文字コードでは無効なバイトがあります</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3</source>
        <translation>%1 行目 %2 列目: %3</translation>
    </message>
    <message>
        <source>Another program&apos;s entry %1 names a file that is not there: %2</source>
        <translation>別のプログラムのエントリ %1 が、存在しないファイルを指しています: %2</translation>
    </message>
    <message>
        <source>Configuration: %1, missing</source>
        <translation>構成ファイル: %1、なし</translation>
    </message>
    <message>
        <source>Configuration: %1, unreadable</source>
        <translation>構成ファイル: %1、読み取り不可</translation>
    </message>
    <message>
        <source>Configuration: %1, damaged, encoding %2</source>
        <translation>構成ファイル: %1、破損、文字コード %2</translation>
    </message>
    <message>
        <source>Configuration: %1, well formed, encoding %2</source>
        <translation>構成ファイル: %1、整形式、文字コード %2</translation>
    </message>
    <message>
        <source>No entry of ours</source>
        <translation>プラグインのエントリはありません</translation>
    </message>
    <message>
        <source>Our entry: there once, disabled, for %1</source>
        <translation>プラグインのエントリ: 1 個、無効、ファイル: %1</translation>
    </message>
    <message>
        <source>Our entry: there once, enabled, for %1</source>
        <translation>プラグインのエントリ: 1 個、有効、ファイル: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, disabled, for %1</source>
        <translation>プラグインのエントリ: %2 個、無効、ファイル: %1</translation>
    </message>
    <message>
        <source>Our entry: there %2 times, enabled, for %1</source>
        <translation>プラグインのエントリ: %2 個、有効、ファイル: %1</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, well formed; to put it back:</source>
        <translation>%1 のバックアップ、%2 バイト、整形式。復元するには:</translation>
    </message>
    <message>
        <source>Older backups: %1</source>
        <translation>それより古いバックアップ: %1</translation>
    </message>
    <message>
        <source>Record: agrees</source>
        <translation>インストール記録: 一致</translation>
    </message>
    <message>
        <source>Record: in %1</source>
        <translation>インストール記録: プラグインの場所は %1</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <translation>%1: %2%3</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>インストール記録</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>問題はありません。</translation>
    </message>
    <message>
        <source>What to do:</source>
        <translation>必要な対処:</translation>
    </message>
    <message>
        <source>Configuration: no Proton prefix</source>
        <translation>構成ファイル: Proton プレフィックスなし</translation>
    </message>
    <message>
        <source>In the Proton prefix %1</source>
        <translation>Proton プレフィックス %1 の中</translation>
    </message>
    <message>
        <source>no named file</source>
        <translation>指定なし</translation>
    </message>
    <message>
        <source>Backup of %1, %2 bytes, damaged</source>
        <translation>%1 のバックアップ、%2 バイト、破損</translation>
    </message>
    <message>
        <source>Configuration: %1, a link that leads nowhere</source>
        <translation>構成ファイル: %1、リンク先のないリンク</translation>
    </message>
</context>
<context>
    <name>Quillmont::Utility::Doctor::XmlDamage</name>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>整形式の XML ではありません: %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルは空です。</translation>
    </message>
    <message>
        <source>The file holds nothing but white space.</source>
        <translation>ファイルには空白しかありません。</translation>
    </message>
    <message>
        <source>The file holds nothing but zero bytes: the computer stopped while it was written, or its disk is failing.</source>
        <translation>ファイルにはゼロバイトしかありません。書き込み中にコンピューターが停止したか、ディスクが故障しかけています。</translation>
    </message>
    <message>
        <source>The file is a web page, not XML.</source>
        <translation>ファイルは XML ではなく、Web ページです。</translation>
    </message>
    <message>
        <source>The file does not begin with a tag, so it is not XML.</source>
        <translation>ファイルがタグで始まっていないため、XML ではありません。</translation>
    </message>
    <message>
        <source>Zero bytes begin in line %1: the file was not written to its end.</source>
        <translation>%1 行目からゼロバイトが続いています。ファイルが最後まで書き込まれませんでした。</translation>
    </message>
    <message>
        <source>There are two root elements: somebody appended a second document in line %1.</source>
        <translation>ルート要素が 2 つあります。%1 行目に 2 つ目の文書が追加されています。</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed: the file ends in line %3.</source>
        <translation>%2 行目の &lt;%1&gt; が閉じられていません。ファイルは %3 行目で終わっています。</translation>
    </message>
    <message>
        <source>The file has no element.</source>
        <translation>ファイルに要素がありません。</translation>
    </message>
    <message>
        <source>The file ends in the middle of a tag, which begins in line %1.</source>
        <translation>ファイルがタグの途中で終わっています。そのタグは %1 行目で始まります。</translation>
    </message>
    <message>
        <source>A tag in line %1 has no &quot;&gt;&quot;.</source>
        <translation>%1 行目のタグに &quot;&gt;&quot; がありません。</translation>
    </message>
    <message>
        <source>&lt;?xml ...?&gt; in line %1 has to be the very beginning of the file.</source>
        <translation>%1 行目の &lt;?xml ...?&gt; は、ファイルの先頭になければなりません。</translation>
    </message>
    <message>
        <source>A second document begins in line %1: somebody appended it.</source>
        <translation>%1 行目から 2 つ目の文書が始まっています。後から追加されたものです。</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 ends with &lt;/%3&gt; in line %4: letter case counts.</source>
        <translation>%2 行目の &lt;%1&gt; が %4 行目の &lt;/%3&gt; で終わっています。大文字と小文字は区別されます。</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes nothing: no &lt;%1&gt; is open there.</source>
        <translation>%2 行目の &lt;/%1&gt; は何も閉じていません。そこで開いている &lt;%1&gt; はありません。</translation>
    </message>
    <message>
        <source>&lt;%1&gt; in line %2 is never closed; &lt;/%3&gt; in line %4 came first.</source>
        <translation>%2 行目の &lt;%1&gt; が閉じられていません。先に %4 行目の &lt;/%3&gt; が来ています。</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; comes a second time in line %2: behind the document is the rest of an older, longer file.</source>
        <translation>&lt;/%1&gt; が %2 行目にもう一度あります。文書の後ろに、以前のより長いファイルの残りがあります。</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; in line %2 closes an element that was never opened: the line with &lt;%1 ...&gt; is lost.</source>
        <translation>%2 行目の &lt;/%1&gt; は、開かれていない要素を閉じています。&lt;%1 ...&gt; の行が失われています。</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in line %1 begins no tag; as text it is written &quot;&amp;lt;&quot;.</source>
        <translation>%1 行目の &quot;&lt;&quot; はタグの始まりではありません。文字としては &quot;&amp;lt;&quot; と書きます。</translation>
    </message>
    <message>
        <source>%1 in line %2 is no tag; what is meant is %3.</source>
        <translation>%2 行目の %1 はタグではありません。正しくは %3 です。</translation>
    </message>
    <message>
        <source>Behind the end of the document, in line %1, there is more text: the rest of an older, longer file?</source>
        <translation>文書の終わりより後の %1 行目に、まだテキストがあります。以前のより長いファイルの残りでしょうか。</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; in line %1 has to be written &quot;&amp;amp;&quot;.</source>
        <translation>%1 行目の &quot;&amp;&quot; は &quot;&amp;amp;&quot; と書く必要があります。</translation>
    </message>
    <message>
        <source>Line %1 holds a control character, which XML does not allow.</source>
        <translation>%1 行目に、XML で使用できない制御文字があります。</translation>
    </message>
    <message>
        <source>A quotation mark is missing in a tag in line %1.</source>
        <translation>%1 行目のタグに引用符が足りません。</translation>
    </message>
    <message>
        <source>The value of %1 in line %2 has no quotation marks.</source>
        <translation>%2 行目の %1 の値に引用符がありません。</translation>
    </message>
</context>
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
        <translation>「%0」を「%1」にコピーできません。フォルダー「%2」へのアクセス権限があるか確認してください。<byte value="xd"/>
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
        <translation>ファイル「%0」に構成を書き込めません。このファイルへのアクセス権限があるか確認してください。</translation>
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
<context>
    <name>Quillmont::Utility::Widgets::ProgressWindow</name>
    <message>
        <source>%0: %1</source>
        <translation>%0: %1</translation>
    </message>
    <message>
        <source>File %0 of %1: %2</source>
        <translation>ファイル %0/%1: %2</translation>
    </message>
    <message>
        <source>Installing Orbwell</source>
        <translation>Orbwell をインストール中</translation>
    </message>
    <message>
        <source>Uninstalling Orbwell</source>
        <translation>Orbwell をアンインストール中</translation>
    </message>
</context>
</TS>
