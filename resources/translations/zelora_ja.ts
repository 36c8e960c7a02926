<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ff of nn</source>
        <translation>%2 中 %1</translation>
    </message>
    <message>
        <source>progrOpenOpening</source>
        <translation>開いています: </translation>
    </message>
    <message>
        <source>progress_Cancelling</source>
        <translation>中止しています…</translation>
    </message>
    <message>
        <source>progrOpen_ExaminingFile</source>
        <translation>調べています: </translation>
    </message>
    <message>
        <source>progrOpen_ReadingFile</source>
        <translation>読み込み中: </translation>
    </message>
    <message>
        <source>progrOpen_ParsingDicomDir</source>
        <translation>DICOMDIR を読み込んでいます…</translation>
    </message>
    <message>
        <source>progrOpen_RemoveEmptyTreeBranches</source>
        <translation>空の項目を除いています…</translation>
    </message>
    <message>
        <source>progrOpen_CollectingImageFiles</source>
        <translation>画像ファイルを探しています…</translation>
    </message>
    <message>
        <source>progrOpen_ProcessingFile</source>
        <translation>%1 を確認しています</translation>
    </message>
    <message>
        <source>progrOpen_DicomDirFinishing</source>
        <translation>患者リストを仕上げています…</translation>
    </message>
    <message>
        <source>progrOpen_CopyingFile</source>
        <translation>%1 をコピーしています (%2 / %3 MB)</translation>
    </message>
    <message>
        <source>Anonymized</source>
        <translation>匿名</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>varDir is empty.</source>
        <translation>「%1」は空です。</translation>
    </message>
    <message>
        <source>varDir contains a DICOMDIR. Choosing this folder will create a patient list.</source>
        <translation>「%1」には DICOMDIR があります。このフォルダを選ぶと、その患者リストが開きます。</translation>
    </message>
    <message>
        <source>varDir does not contain a DICOMDIR.</source>
        <translation>「%1」には DICOMDIR がありません。選ぶと、中の画像が開きます。</translation>
    </message>
    <message>
        <source>Last check</source>
        <translation>最後の確認:</translation>
    </message>
    <message>
        <source>Last check never</source>
        <translation>アップデートはまだ確認されていません。</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 フレーム</translation>
    </message>
    <message>
        <source>N frames</source>
        <translation>%1 フレーム</translation>
    </message>
    <message>
        <source>Extracted Localizer</source>
        <translation>分離した位置決め画像</translation>
    </message>
    <message>
        <source>Extracted Localizers</source>
        <translation>分離した位置決め画像 %1 枚</translation>
    </message>
    <message>
        <source>%@, %dx%d pixels</source>
        <translation>%1、%2x%3 ピクセル</translation>
    </message>
    <message>
        <source>%@, ... pixels</source>
        <translation>%1、... ピクセル</translation>
    </message>
    <message>
        <source>... frames, ... pixels</source>
        <translation>... フレーム、... ピクセル</translation>
    </message>
    <message>
        <source>%.2f sec</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%.2f sec, %dx%d pixels</source>
        <translation>%1 秒、%2x%3 ピクセル</translation>
    </message>
    <message>
        <source>... sec</source>
        <translation>... 秒</translation>
    </message>
    <message>
        <source>... sec, ... pixels</source>
        <translation>... 秒、... ピクセル</translation>
    </message>
    <message>
        <source>%@, %d x %d pixels</source>
        <translation>%1、%2 x %3 ピクセル</translation>
    </message>
    <message>
        <source>%d x %d pixels</source>
        <translation>%1 x %2 ピクセル</translation>
    </message>
    <message>
        <source>... pixels</source>
        <translation>... ピクセル</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>Patient Browser</source>
        <translation>患者ブラウザ</translation>
    </message>
    <message>
        <source>Info Pane</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Show Info</source>
        <translation>情報を表示</translation>
    </message>
    <message>
        <source>Hide Info</source>
        <translation>情報を隠す</translation>
    </message>
</context>
<context>
    <name>ZELErrors</name>
    <message>
        <source>FileCannotBeOpened</source>
        <translation>「%1」を開けません。</translation>
    </message>
    <message>
        <source>NoDICOMFilesFound</source>
        <translation>「%1」に DICOM 画像が見つかりませんでした。</translation>
    </message>
    <message>
        <source>DICOMDIRNoImagesFound</source>
        <translation>「%1」の DICOMDIR から画像にたどり着けません。</translation>
    </message>
    <message>
        <source>NoDICOMDIRImagesFound</source>
        <translation>DICOMDIR に載っているファイルが一つも見つかりませんでした。フォルダ自体から画像を探すには、「DICOMDIR を無視」をオンにして開いてください。</translation>
    </message>
    <message>
        <source>RecentDocError</source>
        <translation>「%1」を開けません。</translation>
    </message>
    <message>
        <source>RecentWillBeDeleted</source>
        <translation>移動または削除された可能性があります。「最近使った項目」メニューから取り除きます。</translation>
    </message>
    <message>
        <source>BadImage</source>
        <translation>ファイルに有効な画像がありません。</translation>
    </message>
    <message>
        <source>ResetToWWWLDefaults</source>
        <translation>ウインドウのプリセットを初期値に戻しますか?</translation>
    </message>
    <message>
        <source>ResetToWWWLExplain</source>
        <translation>追加または変更したプリセットは失われます。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>MenuItems</name>
    <message>
        <source>Clear Menu</source>
        <translation>メニューを消去</translation>
    </message>
    <message>
        <source>Region # title</source>
        <translation>領域 %1: %2</translation>
    </message>
    <message>
        <source>Region #</source>
        <translation>領域 %1</translation>
    </message>
    <message>
        <source>Num-title</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Num-only</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Tissue</source>
        <translation>組織</translation>
    </message>
    <message>
        <source>Color Flow</source>
        <translation>カラーフロー</translation>
    </message>
    <message>
        <source>PW Spectral Doppler</source>
        <translation>PW スペクトルドプラ</translation>
    </message>
    <message>
        <source>CW Spectral Doppler</source>
        <translation>CW スペクトルドプラ</translation>
    </message>
    <message>
        <source>Doppler Mean Trace</source>
        <translation>ドプラ平均トレース</translation>
    </message>
    <message>
        <source>Doppler Mode Trace</source>
        <translation>ドプラ最頻値トレース</translation>
    </message>
    <message>
        <source>Doppler Max Trace</source>
        <translation>ドプラ最大トレース</translation>
    </message>
    <message>
        <source>Volume Trace</source>
        <translation>容積トレース</translation>
    </message>
    <message>
        <source>d(volume)/dt Trace</source>
        <translation>d(容積)/dt トレース</translation>
    </message>
    <message>
        <source>ECG Trace</source>
        <translation>心電図トレース</translation>
    </message>
    <message>
        <source>Pulse Trace</source>
        <translation>脈波トレース</translation>
    </message>
    <message>
        <source>Phonocardiogram Trace</source>
        <translation>心音図トレース</translation>
    </message>
    <message>
        <source>Gray bar</source>
        <translation>グレーバー</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>カラーバー</translation>
    </message>
    <message>
        <source>Integrated Backscatter</source>
        <translation>積分後方散乱</translation>
    </message>
    <message>
        <source>Area Trace</source>
        <translation>面積トレース</translation>
    </message>
    <message>
        <source>d(area)/dt</source>
        <translation>d(面積)/dt</translation>
    </message>
    <message>
        <source>Other Physiological input</source>
        <translation>その他の生理信号</translation>
    </message>
    <message>
        <source>Series Grid</source>
        <translation>シリーズの配置</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>1 面</translation>
    </message>
    <message>
        <source>2 rows</source>
        <translation>2 行</translation>
    </message>
    <message>
        <source>2 columns</source>
        <translation>2 列</translation>
    </message>
    <message>
        <source>1 top, 2 bottom</source>
        <translation>上 1、下 2</translation>
    </message>
    <message>
        <source>2 top, 1 bottom</source>
        <translation>上 2、下 1</translation>
    </message>
    <message>
        <source>1 left, 2 right</source>
        <translation>左 1、右 2</translation>
    </message>
    <message>
        <source>2 left, 1 right</source>
        <translation>左 2、右 1</translation>
    </message>
    <message>
        <source>3 rows</source>
        <translation>3 行</translation>
    </message>
    <message>
        <source>3 columns</source>
        <translation>3 列</translation>
    </message>
    <message>
        <source>1 top, 3 bottom</source>
        <translation>上 1、下 3</translation>
    </message>
    <message>
        <source>3 top, 1 bottom</source>
        <translation>上 3、下 1</translation>
    </message>
    <message>
        <source>1 left, 3 right</source>
        <translation>左 1、右 3</translation>
    </message>
    <message>
        <source>3 left, 1 right</source>
        <translation>左 3、右 1</translation>
    </message>
    <message>
        <source>2 top, 2 bottom</source>
        <translation>上 2、下 2</translation>
    </message>
    <message>
        <source>2 left, 2 right</source>
        <translation>左 2、右 2</translation>
    </message>
    <message>
        <source>4 rows</source>
        <translation>4 行</translation>
    </message>
    <message>
        <source>4 columns</source>
        <translation>4 列</translation>
    </message>
    <message>
        <source>Image Grid</source>
        <translation>画像の配置</translation>
    </message>
    <message>
        <source>1 x 1</source>
        <translation>1 x 1</translation>
    </message>
    <message>
        <source>1 x 2</source>
        <translation>1 x 2</translation>
    </message>
    <message>
        <source>2 x 1</source>
        <translation>2 x 1</translation>
    </message>
    <message>
        <source>2 x 2</source>
        <translation>2 x 2</translation>
    </message>
    <message>
        <source>2 x 3</source>
        <translation>2 x 3</translation>
    </message>
    <message>
        <source>3 x 2</source>
        <translation>3 x 2</translation>
    </message>
    <message>
        <source>3 x 3</source>
        <translation>3 x 3</translation>
    </message>
    <message>
        <source>3 x 4</source>
        <translation>3 x 4</translation>
    </message>
    <message>
        <source>4 x 3</source>
        <translation>4 x 3</translation>
    </message>
    <message>
        <source>4 x 4</source>
        <translation>4 x 4</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>その他…</translation>
    </message>
    <message>
        <source>Previous Sequence</source>
        <translation>前のシーケンス</translation>
    </message>
    <message>
        <source>Next Sequence</source>
        <translation>次のシーケンス</translation>
    </message>
    <message>
        <source>Mark Sequence</source>
        <translation>シーケンスに印を付ける</translation>
    </message>
    <message>
        <source>Unmark Sequence</source>
        <translation>シーケンスの印を外す</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>First Frame</source>
        <translation>最初のフレーム</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>前のフレーム</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>次のフレーム</translation>
    </message>
    <message>
        <source>Last Frame</source>
        <translation>最後のフレーム</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Reduce</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Normal Size</source>
        <translation>実寸</translation>
    </message>
    <message>
        <source>Fit in Window</source>
        <translation>ウインドウに合わせる</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>向き</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>白黒反転</translation>
    </message>
    <message>
        <source>Show Demographics</source>
        <translation>患者情報を表示</translation>
    </message>
    <message>
        <source>Hide Demographics</source>
        <translation>患者情報を隠す</translation>
    </message>
    <message>
        <source>Show Scale</source>
        <translation>スケールを表示</translation>
    </message>
    <message>
        <source>Hide Scale</source>
        <translation>スケールを隠す</translation>
    </message>
    <message>
        <source>Show Overlays</source>
        <translation>オーバーレイを表示</translation>
    </message>
    <message>
        <source>Hide Overlays</source>
        <translation>オーバーレイを隠す</translation>
    </message>
    <message>
        <source>Show Measurements</source>
        <translation>計測を表示</translation>
    </message>
    <message>
        <source>Hide Measurements</source>
        <translation>計測を隠す</translation>
    </message>
    <message>
        <source>Show US Regions</source>
        <translation>US 領域を表示</translation>
    </message>
    <message>
        <source>Hide US Regions</source>
        <translation>US 領域を隠す</translation>
    </message>
    <message>
        <source>Play Cine</source>
        <translation>シネ再生</translation>
    </message>
    <message>
        <source>Stop Cine</source>
        <translation>シネ停止</translation>
    </message>
    <message>
        <source>Play All</source>
        <translation>すべて再生</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>すべて停止</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>ファイルマネージャで表示</translation>
    </message>
    <message>
        <source>Stroke On</source>
        <translation>輪郭あり</translation>
    </message>
    <message>
        <source>Stroke Off</source>
        <translation>輪郭なし</translation>
    </message>
    <message>
        <source>Fill On</source>
        <translation>塗りあり</translation>
    </message>
    <message>
        <source>Fill Off</source>
        <translation>塗りなし</translation>
    </message>
    <message>
        <source>Show Label</source>
        <translation>ラベルを表示</translation>
    </message>
    <message>
        <source>Hide Label</source>
        <translation>ラベルを隠す</translation>
    </message>
    <message>
        <source>Shadow On</source>
        <translation>影あり</translation>
    </message>
    <message>
        <source>Shadow Off</source>
        <translation>影なし</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>最前面へ</translation>
    </message>
    <message>
        <source>Move Forward</source>
        <translation>前面へ</translation>
    </message>
    <message>
        <source>Move Backwards</source>
        <translation>背面へ</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>最背面へ</translation>
    </message>
    <message>
        <source>Propagate Measurement</source>
        <translation>計測を全フレームへ</translation>
    </message>
    <message>
        <source>Delete Measurement</source>
        <translation>計測を削除</translation>
    </message>
    <message>
        <source>Delete All Measurements</source>
        <translation>すべての計測を削除</translation>
    </message>
    <message>
        <source>Meas Contextual</source>
        <translation>計測</translation>
    </message>
    <message>
        <source>Grid Contextual</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Table #</source>
        <translation>テーブル %1</translation>
    </message>
    <message>
        <source>ww_bw</source>
        <translation>W</translation>
    </message>
    <message>
        <source>wc_bw</source>
        <translation>L</translation>
    </message>
    <message>
        <source>brightness_bw</source>
        <translation>明</translation>
    </message>
    <message>
        <source>contrast_bw</source>
        <translation>対</translation>
    </message>
    <message>
        <source>Image window width</source>
        <translation>ウインドウ幅</translation>
    </message>
    <message>
        <source>Image window level</source>
        <translation>ウインドウレベル</translation>
    </message>
    <message>
        <source>Image brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Image contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>元の値</translation>
    </message>
    <message>
        <source>Unnamed</source>
        <translation>名称なし</translation>
    </message>
    <message>
        <source>Make Preset</source>
        <translation>プリセットを作成</translation>
    </message>
    <message>
        <source>Edit Presets</source>
        <translation>プリセットを編集</translation>
    </message>
    <message>
        <source>Adjust...</source>
        <translation>調整…</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>調整</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>ウインドウ幅</translation>
    </message>
    <message>
        <source>Window Level</source>
        <translation>ウインドウレベル</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>WWWLValuesExplain</source>
        <translation>%1 から %2 まで</translation>
    </message>
    <message>
        <source>BCValuesExplain</source>
        <translation>%1 から %2 まで</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>画像(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Sequence</source>
        <translation>シーケンス(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cine</source>
        <translation>シネ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>ウインドウ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>最近使った項目</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Export Metadata...</source>
        <translation>メタデータを書き出す…</translation>
    </message>
    <message>
        <source>Anonymize...</source>
        <translation>匿名化…</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>印刷…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ウインドウを閉じる</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>フルスクリーンにする</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>フルスクリーンを終了</translation>
    </message>
    <message>
        <source>Show Toolbar</source>
        <translation>ツールバーを表示</translation>
    </message>
    <message>
        <source>Hide Toolbar</source>
        <translation>ツールバーを隠す</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Show Patient List</source>
        <translation>患者リストを表示</translation>
    </message>
    <message>
        <source>Hide Patient List</source>
        <translation>患者リストを隠す</translation>
    </message>
    <message>
        <source>Show Study Info</source>
        <translation>検査情報を表示</translation>
    </message>
    <message>
        <source>Hide Study Info</source>
        <translation>検査情報を隠す</translation>
    </message>
    <message>
        <source>Show Secondary Toolbar</source>
        <translation>第 2 ツールバーを表示</translation>
    </message>
    <message>
        <source>Hide Secondary Toolbar</source>
        <translation>第 2 ツールバーを隠す</translation>
    </message>
    <message>
        <source>Show Measurement Pane</source>
        <translation>計測パネルを表示</translation>
    </message>
    <message>
        <source>Hide Measurement Pane</source>
        <translation>計測パネルを隠す</translation>
    </message>
    <message>
        <source>Show Metadata Palette</source>
        <translation>メタデータパレットを表示</translation>
    </message>
    <message>
        <source>Hide Metadata Palette</source>
        <translation>メタデータパレットを隠す</translation>
    </message>
    <message>
        <source>Mark Current Sequence</source>
        <translation>現在のシーケンスに印を付ける</translation>
    </message>
    <message>
        <source>Unmark Current Sequence</source>
        <translation>現在のシーケンスの印を外す</translation>
    </message>
    <message>
        <source>Mark All</source>
        <translation>すべてに印を付ける</translation>
    </message>
    <message>
        <source>Unmark All</source>
        <translation>すべての印を外す</translation>
    </message>
    <message>
        <source>Toggle Marked</source>
        <translation>印を反転</translation>
    </message>
    <message>
        <source>Mark Selected</source>
        <translation>選択項目に印を付ける</translation>
    </message>
    <message>
        <source>Unmark Selected</source>
        <translation>選択項目の印を外す</translation>
    </message>
    <message>
        <source>Toggle Marked in Selection</source>
        <translation>選択項目の印を反転</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>すべてリセット</translation>
    </message>
    <message>
        <source>Reset Colors</source>
        <translation>色をリセット</translation>
    </message>
    <message>
        <source>Reset Orientation</source>
        <translation>向きをリセット</translation>
    </message>
    <message>
        <source>Reset Position</source>
        <translation>位置をリセット</translation>
    </message>
    <message>
        <source>Reset Measurements</source>
        <translation>計測をリセット</translation>
    </message>
    <message>
        <source>Original Window</source>
        <translation>元のウインドウ</translation>
    </message>
    <message>
        <source>No Color Table</source>
        <translation>カラーテーブルなし</translation>
    </message>
    <message>
        <source>Color Table</source>
        <translation>カラーテーブル</translation>
    </message>
    <message>
        <source>Window Presets</source>
        <translation>ウインドウのプリセット</translation>
    </message>
    <message>
        <source>Show Reference Lines</source>
        <translation>参照線を表示</translation>
    </message>
    <message>
        <source>Hide Reference Lines</source>
        <translation>参照線を隠す</translation>
    </message>
    <message>
        <source>Reference Lines</source>
        <translation>参照線</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
    <message>
        <source>Whole Image</source>
        <translation>画像全体</translation>
    </message>
    <message>
        <source>User Selection</source>
        <translation>ユーザーの選択</translation>
    </message>
    <message>
        <source>Propagate Crop</source>
        <translation>切り抜きを全シリーズへ</translation>
    </message>
    <message>
        <source>Clear Crop in All Series</source>
        <translation>全シリーズの切り抜きを解除</translation>
    </message>
    <message>
        <source>No regions found</source>
        <translation>領域がありません</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>ループ</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>往復</translation>
    </message>
    <message>
        <source>Play Automatically</source>
        <translation>自動再生</translation>
    </message>
    <message>
        <source>Play Next Series</source>
        <translation>次のシリーズを再生</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Zoom Tool</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Window and Level</source>
        <translation>ウインドウ幅とレベル</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直線</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>楕円</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多角形</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>矢印</translation>
    </message>
    <message>
        <source>Calibration Line</source>
        <translation>校正線</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>スポイト</translation>
    </message>
    <message>
        <source>Apply To</source>
        <translation>適用先</translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>現在のフレーム</translation>
    </message>
    <message>
        <source>All Frames of the Sequence</source>
        <translation>シーケンスの全フレーム</translation>
    </message>
    <message>
        <source>Demographics</source>
        <translation>患者情報</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>計測</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>環境設定…</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>謝辞</translation>
    </message>
    <message>
        <source>First Aid...</source>
        <translation>応急処置…</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>productNameXX について</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>Reveal Selected in Finder</source>
        <translation>選択項目をファイルマネージャで表示</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>印</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>テキストのみ</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>画像のみ</translation>
    </message>
    <message>
        <source>Thumbnail Size</source>
        <translation>サムネイルの大きさ</translation>
    </message>
    <message>
        <source>Customize Toolbar...</source>
        <translation>ツールバーをカスタマイズ…</translation>
    </message>
    <message>
        <source>Customize Toolbar</source>
        <translation>ツールバーをカスタマイズ</translation>
    </message>
    <message>
        <source>Available Items</source>
        <translation>使用できる項目</translation>
    </message>
    <message>
        <source>Add Item</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove Item</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Restore Default Items</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message>
        <source>Previous and Next Series</source>
        <translation>前/次のシリーズ</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Rotate and Flip</source>
        <translation>回転と反転</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>区切り線</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>可変スペース</translation>
    </message>
</context>
<context>
    <name>Measurements</name>
    <message>
        <source>kGlobalMeasPrefix</source>
        <translation>全フレーム: </translation>
    </message>
    <message>
        <source>kMeasDisplayTitle</source>
        <translation>%1%2: %3</translation>
    </message>
    <message>
        <source>kRegionUnitStr_none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>kRegionUnitStr_percent</source>
        <translation>%</translation>
    </message>
    <message>
        <source>kRegionUnitStr_db</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>kLineUnits_cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>kLineUnits_Pix</source>
        <translation>px</translation>
    </message>
    <message>
        <source>kRegionUnitStr_sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>kRegionUnitStr_hertz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>kRegionUnitStr_dbsec</source>
        <translation>dB/s</translation>
    </message>
    <message>
        <source>kRegionUnitStr_cmsec</source>
        <translation>cm/s</translation>
    </message>
    <message>
        <source>kAreaUnits_cm2</source>
        <translation>cm²</translation>
    </message>
    <message>
        <source>kRegionUnitStr_cm2sec</source>
        <translation>cm²/s</translation>
    </message>
    <message>
        <source>kRegionUnitStr_cm3</source>
        <translation>cm³</translation>
    </message>
    <message>
        <source>kRegionUnitStr_cm3sec</source>
        <translation>cm³/s</translation>
    </message>
    <message>
        <source>kRegionUnitStr_degrees</source>
        <translation>°</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_percent</source>
        <translation>%</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_db</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_hertz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_dbsec</source>
        <translation>dB/s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_cmsec</source>
        <translation>cm/s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_cm2sec</source>
        <translation>cm²/s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_cm3</source>
        <translation>cm³</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_cm3sec</source>
        <translation>cm³/s</translation>
    </message>
    <message>
        <source>kRegionPhysicalUnit_degrees</source>
        <translation>°</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>該当なし</translation>
    </message>
    <message>
        <source>kRegionFormat_2D</source>
        <translation>2D</translation>
    </message>
    <message>
        <source>kRegionFormat_MMode</source>
        <translation>M-Mode</translation>
    </message>
    <message>
        <source>kRegionFormat_Spectral</source>
        <translation>スペクトル</translation>
    </message>
    <message>
        <source>kRegionFormat_WaveForm</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>kRegionFormat_graphics</source>
        <translation>グラフィックス</translation>
    </message>
    <message>
        <source>kRegionFormat_none</source>
        <translation>領域</translation>
    </message>
</context>
<context>
    <name>VendorStrings_zel</name>
    <message>
        <source>HelpFileName</source>
        <translation>Zelora Viewer ヘルプ.pdf</translation>
    </message>
    <message>
        <source>MenuProductName</source>
        <translation>Zelora Viewer</translation>
    </message>
    <message>
        <source>AboutText</source>
        <translation>DICOM 画像ビューアです。医療機器ではありません。これだけに基づいて診断しないでください。</translation>
    </message>
    <message>
        <source>Program Crash Report</source>
        <translation>Zelora Viewer %1 クラッシュレポート</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Panes</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>Pane tip</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>General title</source>
        <translation>一般設定</translation>
    </message>
    <message>
        <source>DICOM</source>
        <translation>DICOM</translation>
    </message>
    <message>
        <source>DICOM title</source>
        <translation>DICOM 設定</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Presets title</source>
        <translation>ウインドウのプリセット</translation>
    </message>
    <message>
        <source>Presets title tip</source>
        <translation>値はダブルクリックで変更、行はドラッグで移動できます</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Updates title</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>First layout</source>
        <translation>最初の配置</translation>
    </message>
    <message>
        <source>First layout tip</source>
        <translation>開いたときにウインドウをシリーズにどう分けるか</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Scan subfolders</source>
        <translation>サブフォルダも探す</translation>
    </message>
    <message>
        <source>Scan subfolders tip</source>
        <translation>フォルダの中のフォルダにあるものも開きます</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR</source>
        <translation>DICOMDIR を無視</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR tip</source>
        <translation>一覧があっても、フォルダの画像そのものを読みます</translation>
    </message>
    <message>
        <source>Open discs</source>
        <translation>挿入されたディスクを開く</translation>
    </message>
    <message>
        <source>Open discs tip</source>
        <translation>DICOMDIR のあるディスクをすぐに開きます</translation>
    </message>
    <message>
        <source>Copy from discs</source>
        <translation>表示の前にディスクから画像をコピー</translation>
    </message>
    <message>
        <source>Copy from discs tip</source>
        <translation>ディスクを取り出せるようになり、表示の切り替えも速くなります</translation>
    </message>
    <message>
        <source>Copy from servers</source>
        <translation>サーバーを遅いディスクとして扱う</translation>
    </message>
    <message>
        <source>Copy from servers tip</source>
        <translation>ネットワークボリュームの画像もコピーします</translation>
    </message>
    <message>
        <source>Open US and XA large</source>
        <translation>US と XA は 1 シリーズで開く</translation>
    </message>
    <message>
        <source>Open US and XA large tip</source>
        <translation>超音波と血管造影は 1 シリーズをウインドウ全体に開きます</translation>
    </message>
    <message>
        <source>Traverse marked</source>
        <translation>印のあるシリーズにだけ進む</translation>
    </message>
    <message>
        <source>Traverse marked tip</source>
        <translation>シネが全シリーズを巡るとき、印のないものを飛ばします</translation>
    </message>
    <message>
        <source>Text and grids</source>
        <translation>テキストとグリッド</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>画像上のテキスト</translation>
    </message>
    <message>
        <source>Text color tip</source>
        <translation>画像上のテキストの色</translation>
    </message>
    <message>
        <source>Active cell color</source>
        <translation>アクティブな画像</translation>
    </message>
    <message>
        <source>Active cell color tip</source>
        <translation>アクティブな画像を囲む枠の色</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>テキストのフォント</translation>
    </message>
    <message>
        <source>Choose font</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose font tip</source>
        <translation>画像上のテキストのフォントと大きさ</translation>
    </message>
    <message>
        <source>Font sample</source>
        <translation>%1 ポイント %2</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>計測</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>Outline color tip</source>
        <translation>新しい計測の輪郭の色</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>塗り</translation>
    </message>
    <message>
        <source>Fill color tip</source>
        <translation>新しい計測の内側の色</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Merge US</source>
        <translation>シリーズの単独の超音波画像をまとめる</translation>
    </message>
    <message>
        <source>Merge US tip</source>
        <translation>次に開くときから</translation>
    </message>
    <message>
        <source>Merge XA</source>
        <translation>シリーズの単独の血管造影画像をまとめる</translation>
    </message>
    <message>
        <source>Merge XA tip</source>
        <translation>次に開くときから</translation>
    </message>
    <message>
        <source>Decode character sets</source>
        <translation>文字セットに従ってテキストを読む</translation>
    </message>
    <message>
        <source>Decode character sets tip</source>
        <translation>オフ: 古いプログラムと同じ読み方。次に開くときから</translation>
    </message>
    <message>
        <source>Enhance contrast</source>
        <translation>ウインドウを画像の値の範囲に限る</translation>
    </message>
    <message>
        <source>Enhance contrast tip</source>
        <translation>オフ: 規格の式だけによるウインドウ</translation>
    </message>
    <message>
        <source>Localizers</source>
        <translation>位置決め画像</translation>
    </message>
    <message>
        <source>First and last localizers</source>
        <translation>最初と最後の線を表示</translation>
    </message>
    <message>
        <source>First and last localizers tip</source>
        <translation>表示中の画像の線に加え、他のグリッドにシリーズの始まりと終わりを示します</translation>
    </message>
    <message>
        <source>Separate localizers</source>
        <translation>位置決め画像を分ける</translation>
    </message>
    <message>
        <source>Separate localizers tip</source>
        <translation>位置決め画像を別のシーケンスにします。次に開くときから</translation>
    </message>
    <message>
        <source>Colors over images</source>
        <translation>画像上の色</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Overlay color tip</source>
        <translation>ファイルに含まれるオーバーレイの色</translation>
    </message>
    <message>
        <source>US region color</source>
        <translation>超音波の領域</translation>
    </message>
    <message>
        <source>US region color tip</source>
        <translation>超音波の領域を囲む枠の色</translation>
    </message>
    <message>
        <source>Localizer color</source>
        <translation>参照線</translation>
    </message>
    <message>
        <source>Localizer color tip</source>
        <translation>参照線の色</translation>
    </message>
    <message>
        <source>Cine</source>
        <translation>シネ</translation>
    </message>
    <message>
        <source>Cine autoplay</source>
        <translation>すぐに再生</translation>
    </message>
    <message>
        <source>Cine autoplay tip</source>
        <translation>通常再生されるシリーズが現れるとシネを始めます</translation>
    </message>
    <message>
        <source>Enforce speed</source>
        <translation>すべて同じ速度</translation>
    </message>
    <message>
        <source>Enforce speed tip</source>
        <translation>ファイルの指定にかかわらず既定の速度で再生します</translation>
    </message>
    <message>
        <source>Default speed</source>
        <translation>毎秒の画像数</translation>
    </message>
    <message>
        <source>Default speed tip</source>
        <translation>4 から 60</translation>
    </message>
    <message>
        <source>presetTitle</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>presetTitle tip</source>
        <translation>メニューでの名前</translation>
    </message>
    <message>
        <source>wcPreset</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>wcPreset tip</source>
        <translation>ウインドウの中心</translation>
    </message>
    <message>
        <source>wwPreset</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>wwPreset tip</source>
        <translation>ウインドウの幅 (0 より大きい値)</translation>
    </message>
    <message>
        <source>Add preset</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add preset tip</source>
        <translation>選択したものの下にプリセットを追加します</translation>
    </message>
    <message>
        <source>Remove preset</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove preset tip</source>
        <translation>選択したプリセットを削除します (Delete)</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Move up tip</source>
        <translation>選択したプリセットを上へ移します (Alt+上)</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Move down tip</source>
        <translation>選択したプリセットを下へ移します (Alt+下)</translation>
    </message>
    <message>
        <source>Reset presets</source>
        <translation>リセット…</translation>
    </message>
    <message>
        <source>Reset presets tip</source>
        <translation>プログラム付属のプリセットに戻します</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>Check now tip</source>
        <translation>新しいバージョンを探します</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>このプログラムは自分ではアップデートを確認しません。新しいバージョンは、これを入手したのと同じ方法で届きます。</translation>
    </message>
</context>
<context>
    <name>FirstAid</name>
    <message>
        <source>First Aid</source>
        <translation>応急処置</translation>
    </message>
    <message>
        <source>CrashTitle</source>
        <translation>Zelora Viewer は前回正しく終了しませんでした。</translation>
    </message>
    <message>
        <source>Reset all settings</source>
        <translation>すべての設定をリセット</translation>
    </message>
    <message>
        <source>ResetExplain</source>
        <translation>すべての設定が新規インストール時の状態に戻り、プログラムが再起動します。設定の控えは隣に残ります。</translation>
    </message>
    <message>
        <source>Collect crash reports</source>
        <translation>クラッシュレポートを集める</translation>
    </message>
    <message>
        <source>LogsExplain</source>
        <translation>クラッシュのレポートをまとめて表示し、同意した場合にだけメールプログラムで送ります。</translation>
    </message>
    <message>
        <source>UserText</source>
        <translation>起きたとき何をしていましたか?</translation>
    </message>
    <message>
        <source>Remove older reports afterwards</source>
        <translation>あとで古いレポートを削除</translation>
    </message>
    <message>
        <source>ClearLogsTip</source>
        <translation>種類ごとに最後のレポートだけを残します</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>アップデートサービスは設定されていません</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>集める</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>レポートの確認</translation>
    </message>
    <message>
        <source>ReviewExplain</source>
        <translation>このコンピュータから出るのはこれですべてです。患者やあなたを示しうる部分に印が付いています。その部分や、ほかに選択した部分を消してください。</translation>
    </message>
    <message>
        <source>Strike all marked</source>
        <translation>印をすべて消す</translation>
    </message>
    <message>
        <source>Strike selected</source>
        <translation>選択部分を消す</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>次の印</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>NotSent</source>
        <translation>レポートを受け取るメールプログラムがありませんでした。</translation>
    </message>
    <message>
        <source>NotSentExplain</source>
        <translation>%1 宛てにご自身でお送りください。レポートはフォルダ %2 にあります。</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%3 中 %2)</translation>
    </message>
    <message>
        <source>&amp;Ignore DICOMDIR</source>
        <translation>DICOMDIR を無視(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Choose a file or a folder to open</source>
        <translation>開くファイルかフォルダを選びます</translation>
    </message>
    <message>
        <source>Drop files, folders or a DICOMDIR here, or choose them:</source>
        <translation>ファイル、フォルダ、DICOMDIR をここにドロップするか、選んでください:</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>フレーム %1 / %2</translation>
    </message>
    <message>
        <source>Frame shown, and how many there are</source>
        <translation>表示中のフレームとその総数</translation>
    </message>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>サブフォルダを含める(&amp;S)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Search the folder for images even if a DICOMDIR lists them</source>
        <translation>DICOMDIR に載っていてもフォルダから画像を探します</translation>
    </message>
    <message>
        <source>Search the folders in the chosen folder too</source>
        <translation>選んだフォルダの中のフォルダも探します</translation>
    </message>
    <message>
        <source>Stop opening (Escape)</source>
        <translation>開くのを中止 (Esc)</translation>
    </message>
    <message>
        <source>There are no frames to show</source>
        <translation>表示するフレームがありません</translation>
    </message>
    <message>
        <source>This frame can't be shown</source>
        <translation>このフレームは表示できません</translation>
    </message>
    <message>
        <source>What was open lately</source>
        <translation>最近開いたもの</translation>
    </message>
    <message>
        <source>Window %1, level %2</source>
        <translation>ウインドウ %1、レベル %2</translation>
    </message>
    <message>
        <source>Window width and level of this frame</source>
        <translation>このフレームのウインドウ幅とレベル</translation>
    </message>
</context>
<context>
    <name>DisplayFields</name>
    <message>
        <source>Patient</source>
        <translation>患者</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>氏名</translation>
    </message>
    <message>
        <source>Patient ID</source>
        <translation>患者 ID</translation>
    </message>
    <message>
        <source>Date of Birth</source>
        <translation>生年月日</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>性別</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>年齢</translation>
    </message>
    <message>
        <source>Size (m)</source>
        <translation>身長 (m)</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>体重 (kg)</translation>
    </message>
    <message>
        <source>Allergies</source>
        <translation>アレルギー</translation>
    </message>
    <message>
        <source>Pregnancy Status</source>
        <translation>妊娠</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>検査</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>記述</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Study ID</source>
        <translation>検査 ID</translation>
    </message>
    <message>
        <source>Accession Number</source>
        <translation>受付番号</translation>
    </message>
    <message>
        <source>Referring Physician</source>
        <translation>依頼医</translation>
    </message>
    <message>
        <source>Reading Physician</source>
        <translation>読影医</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>シリーズ</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Modality</source>
        <translation>モダリティ</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>プロトコル</translation>
    </message>
    <message>
        <source>Body Part</source>
        <translation>部位</translation>
    </message>
    <message>
        <source>Laterality</source>
        <translation>左右</translation>
    </message>
    <message>
        <source>Patient Position</source>
        <translation>患者体位</translation>
    </message>
    <message>
        <source>Performing Physician</source>
        <translation>実施医</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作者</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>装置</translation>
    </message>
    <message>
        <source>Institution</source>
        <translation>施設</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>部門</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>ステーション</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>製造者</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>製造番号</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>造影</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>造影剤</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>投与経路</translation>
    </message>
    <message>
        <source>Volume (ml)</source>
        <translation>量 (ml)</translation>
    </message>
    <message>
        <source>Flow Rate (ml/s)</source>
        <translation>流速 (ml/s)</translation>
    </message>
    <message>
        <source>Ingredient</source>
        <translation>成分</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Instance Number</source>
        <translation>画像番号</translation>
    </message>
    <message>
        <source>Acquisition Date</source>
        <translation>収集日</translation>
    </message>
    <message>
        <source>Acquisition Time</source>
        <translation>収集時刻</translation>
    </message>
    <message>
        <source>Content Date</source>
        <translation>内容の日付</translation>
    </message>
    <message>
        <source>Content Time</source>
        <translation>内容の時刻</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Bits Stored</source>
        <translation>格納ビット</translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation>光度測定解釈</translation>
    </message>
    <message>
        <source>Pixel Spacing (mm)</source>
        <translation>画素間隔 (mm)</translation>
    </message>
    <message>
        <source>Lossy Compression</source>
        <translation>非可逆圧縮</translation>
    </message>
    <message>
        <source>Compression Ratio</source>
        <translation>圧縮率</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>ウインドウ幅</translation>
    </message>
    <message>
        <source>Window Center</source>
        <translation>ウインドウ中心</translation>
    </message>
    <message>
        <source>View Position</source>
        <translation>撮影方向</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>スライス</translation>
    </message>
    <message>
        <source>Slice Thickness (mm)</source>
        <translation>スライス厚 (mm)</translation>
    </message>
    <message>
        <source>Slice Spacing (mm)</source>
        <translation>スライス間隔 (mm)</translation>
    </message>
    <message>
        <source>Slice Location (mm)</source>
        <translation>スライス位置 (mm)</translation>
    </message>
    <message>
        <source>Image Position (mm)</source>
        <translation>画像位置 (mm)</translation>
    </message>
    <message>
        <source>Image Orientation</source>
        <translation>画像方向</translation>
    </message>
    <message>
        <source>X-Ray</source>
        <translation>X 線</translation>
    </message>
    <message>
        <source>Tube Voltage (kV)</source>
        <translation>管電圧 (kV)</translation>
    </message>
    <message>
        <source>Tube Current (mA)</source>
        <translation>管電流 (mA)</translation>
    </message>
    <message>
        <source>Exposure Time (ms)</source>
        <translation>照射時間 (ms)</translation>
    </message>
    <message>
        <source>Exposure (mAs)</source>
        <translation>照射量 (mAs)</translation>
    </message>
    <message>
        <source>Dose Area Product (dGy·cm²)</source>
        <translation>面積線量 (dGy·cm²)</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルタ</translation>
    </message>
    <message>
        <source>Focal Spot (mm)</source>
        <translation>焦点 (mm)</translation>
    </message>
    <message>
        <source>Source to Detector (mm)</source>
        <translation>線源検出器間距離 (mm)</translation>
    </message>
    <message>
        <source>Source to Patient (mm)</source>
        <translation>線源患者間距離 (mm)</translation>
    </message>
    <message>
        <source>Primary Angle (°)</source>
        <translation>第 1 角度 (°)</translation>
    </message>
    <message>
        <source>Secondary Angle (°)</source>
        <translation>第 2 角度 (°)</translation>
    </message>
    <message>
        <source>Body Part Thickness (mm)</source>
        <translation>体厚 (mm)</translation>
    </message>
    <message>
        <source>Compression Force (N)</source>
        <translation>圧迫圧 (N)</translation>
    </message>
    <message>
        <source>Organ Dose (dGy)</source>
        <translation>臓器線量 (dGy)</translation>
    </message>
    <message>
        <source>CT</source>
        <translation>CT</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>再構成関数</translation>
    </message>
    <message>
        <source>Reconstruction Diameter (mm)</source>
        <translation>再構成径 (mm)</translation>
    </message>
    <message>
        <source>Collection Diameter (mm)</source>
        <translation>収集径 (mm)</translation>
    </message>
    <message>
        <source>Gantry Tilt (°)</source>
        <translation>ガントリ傾斜 (°)</translation>
    </message>
    <message>
        <source>Table Height (mm)</source>
        <translation>寝台高 (mm)</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>ピッチ</translation>
    </message>
    <message>
        <source>CTDIvol (mGy)</source>
        <translation>CTDIvol (mGy)</translation>
    </message>
    <message>
        <source>Scan Options</source>
        <translation>スキャンオプション</translation>
    </message>
    <message>
        <source>Rescale Intercept</source>
        <translation>切片</translation>
    </message>
    <message>
        <source>Rescale Slope</source>
        <translation>傾き</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>MR</translation>
    </message>
    <message>
        <source>Scanning Sequence</source>
        <translation>スキャンシーケンス</translation>
    </message>
    <message>
        <source>Sequence Variant</source>
        <translation>シーケンス変法</translation>
    </message>
    <message>
        <source>Sequence Name</source>
        <translation>シーケンス名</translation>
    </message>
    <message>
        <source>Acquisition Type</source>
        <translation>収集タイプ</translation>
    </message>
    <message>
        <source>Field Strength (T)</source>
        <translation>磁場強度 (T)</translation>
    </message>
    <message>
        <source>Repetition Time (ms)</source>
        <translation>繰り返し時間 (ms)</translation>
    </message>
    <message>
        <source>Echo Time (ms)</source>
        <translation>エコー時間 (ms)</translation>
    </message>
    <message>
        <source>Inversion Time (ms)</source>
        <translation>反転時間 (ms)</translation>
    </message>
    <message>
        <source>Flip Angle (°)</source>
        <translation>フリップ角 (°)</translation>
    </message>
    <message>
        <source>Echo Train Length</source>
        <translation>エコートレイン長</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>加算回数</translation>
    </message>
    <message>
        <source>Pixel Bandwidth (Hz)</source>
        <translation>画素帯域幅 (Hz)</translation>
    </message>
    <message>
        <source>Receive Coil</source>
        <translation>受信コイル</translation>
    </message>
    <message>
        <source>SAR (W/kg)</source>
        <translation>SAR (W/kg)</translation>
    </message>
    <message>
        <source>Ultrasound and Cine</source>
        <translation>超音波とシネ</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>ステージ</translation>
    </message>
    <message>
        <source>View</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>Transducer</source>
        <translation>探触子</translation>
    </message>
    <message>
        <source>Frame Time (ms)</source>
        <translation>フレーム時間 (ms)</translation>
    </message>
    <message>
        <source>Cine Rate (1/s)</source>
        <translation>シネ速度 (1/s)</translation>
    </message>
    <message>
        <source>Display Rate (1/s)</source>
        <translation>表示速度 (1/s)</translation>
    </message>
    <message>
        <source>Heart Rate (1/min)</source>
        <translation>心拍数 (1/min)</translation>
    </message>
    <message>
        <source>Mechanical Index</source>
        <translation>メカニカルインデックス</translation>
    </message>
    <message>
        <source>Thermal Index Soft Tissue</source>
        <translation>サーマルインデックス軟部組織</translation>
    </message>
    <message>
        <source>Depth of Scan Field (mm)</source>
        <translation>走査深度 (mm)</translation>
    </message>
    <message>
        <source>Nuclear Medicine and PET</source>
        <translation>核医学と PET</translation>
    </message>
    <message>
        <source>Radiopharmaceutical</source>
        <translation>放射性医薬品</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Decay Correction</source>
        <translation>減衰補正</translation>
    </message>
    <message>
        <source>Counts Accumulated</source>
        <translation>積算カウント</translation>
    </message>
    <message>
        <source>Frame Duration (ms)</source>
        <translation>フレーム収集時間 (ms)</translation>
    </message>
    <message>
        <source>Reconstruction Method</source>
        <translation>再構成法</translation>
    </message>
    <message>
        <source>Attenuation Correction</source>
        <translation>吸収補正</translation>
    </message>
</context>
</TS>
