<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ff of nn</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>progrOpenOpening</source>
        <translation>正在打开: </translation>
    </message>
    <message>
        <source>progress_Cancelling</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>progrOpen_ExaminingFile</source>
        <translation>正在检查: </translation>
    </message>
    <message>
        <source>progrOpen_ReadingFile</source>
        <translation>正在读取: </translation>
    </message>
    <message>
        <source>progrOpen_ParsingDicomDir</source>
        <translation>正在读取 DICOMDIR…</translation>
    </message>
    <message>
        <source>progrOpen_RemoveEmptyTreeBranches</source>
        <translation>正在移除空条目…</translation>
    </message>
    <message>
        <source>progrOpen_CollectingImageFiles</source>
        <translation>正在查找图像文件…</translation>
    </message>
    <message>
        <source>progrOpen_ProcessingFile</source>
        <translation>正在检查 %1</translation>
    </message>
    <message>
        <source>progrOpen_DicomDirFinishing</source>
        <translation>正在完成患者列表…</translation>
    </message>
    <message>
        <source>progrOpen_CopyingFile</source>
        <translation>正在复制 %1（%2 / %3 MB）</translation>
    </message>
    <message>
        <source>Anonymized</source>
        <translation>匿名</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>varDir is empty.</source>
        <translation>“%1”为空。</translation>
    </message>
    <message>
        <source>varDir contains a DICOMDIR. Choosing this folder will create a patient list.</source>
        <translation>“%1”包含 DICOMDIR。选择此文件夹将打开其中的患者列表。</translation>
    </message>
    <message>
        <source>varDir does not contain a DICOMDIR.</source>
        <translation>“%1”不包含 DICOMDIR。选择它将打开其中的图像。</translation>
    </message>
    <message>
        <source>Last check</source>
        <translation>上次检查:</translation>
    </message>
    <message>
        <source>Last check never</source>
        <translation>从未检查过更新。</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 帧</translation>
    </message>
    <message>
        <source>N frames</source>
        <translation>%1 帧</translation>
    </message>
    <message>
        <source>Extracted Localizer</source>
        <translation>分离的定位像</translation>
    </message>
    <message>
        <source>Extracted Localizers</source>
        <translation>%1 幅分离的定位像</translation>
    </message>
    <message>
        <source>%@, %dx%d pixels</source>
        <translation>%1，%2x%3 像素</translation>
    </message>
    <message>
        <source>%@, ... pixels</source>
        <translation>%1，... 像素</translation>
    </message>
    <message>
        <source>... frames, ... pixels</source>
        <translation>... 帧，... 像素</translation>
    </message>
    <message>
        <source>%.2f sec</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%.2f sec, %dx%d pixels</source>
        <translation>%1 秒，%2x%3 像素</translation>
    </message>
    <message>
        <source>... sec</source>
        <translation>... 秒</translation>
    </message>
    <message>
        <source>... sec, ... pixels</source>
        <translation>... 秒，... 像素</translation>
    </message>
    <message>
        <source>%@, %d x %d pixels</source>
        <translation>%1，%2 x %3 像素</translation>
    </message>
    <message>
        <source>%d x %d pixels</source>
        <translation>%1 x %2 像素</translation>
    </message>
    <message>
        <source>... pixels</source>
        <translation>... 像素</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Patient Browser</source>
        <translation>患者浏览器</translation>
    </message>
    <message>
        <source>Info Pane</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Show Info</source>
        <translation>显示信息</translation>
    </message>
    <message>
        <source>Hide Info</source>
        <translation>隐藏信息</translation>
    </message>
</context>
<context>
    <name>ZELErrors</name>
    <message>
        <source>FileCannotBeOpened</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>NoDICOMFilesFound</source>
        <translation>在“%1”中未找到 DICOM 图像。</translation>
    </message>
    <message>
        <source>DICOMDIRNoImagesFound</source>
        <translation>“%1”中的 DICOMDIR 没有指向任何图像。</translation>
    </message>
    <message>
        <source>NoDICOMDIRImagesFound</source>
        <translation>DICOMDIR 列出的文件一个也没有找到。要在文件夹本身中查找图像，请打开“忽略 DICOMDIR”后再打开它。</translation>
    </message>
    <message>
        <source>RecentDocError</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>RecentWillBeDeleted</source>
        <translation>它可能已被移动或删除。其条目将从“最近打开”菜单中移除。</translation>
    </message>
    <message>
        <source>BadImage</source>
        <translation>该文件不包含有效的图像。</translation>
    </message>
    <message>
        <source>ResetToWWWLDefaults</source>
        <translation>将窗宽窗位预设恢复为默认值？</translation>
    </message>
    <message>
        <source>ResetToWWWLExplain</source>
        <translation>您添加或更改的预设将丢失。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MenuItems</name>
    <message>
        <source>Clear Menu</source>
        <translation>清空菜单</translation>
    </message>
    <message>
        <source>Region # title</source>
        <translation>区域 %1：%2</translation>
    </message>
    <message>
        <source>Region #</source>
        <translation>区域 %1</translation>
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
        <translation>组织</translation>
    </message>
    <message>
        <source>Color Flow</source>
        <translation>彩色血流</translation>
    </message>
    <message>
        <source>PW Spectral Doppler</source>
        <translation>PW 频谱多普勒</translation>
    </message>
    <message>
        <source>CW Spectral Doppler</source>
        <translation>CW 频谱多普勒</translation>
    </message>
    <message>
        <source>Doppler Mean Trace</source>
        <translation>多普勒平均轨迹</translation>
    </message>
    <message>
        <source>Doppler Mode Trace</source>
        <translation>多普勒众数轨迹</translation>
    </message>
    <message>
        <source>Doppler Max Trace</source>
        <translation>多普勒最大轨迹</translation>
    </message>
    <message>
        <source>Volume Trace</source>
        <translation>容积轨迹</translation>
    </message>
    <message>
        <source>d(volume)/dt Trace</source>
        <translation>d(容积)/dt 轨迹</translation>
    </message>
    <message>
        <source>ECG Trace</source>
        <translation>心电图轨迹</translation>
    </message>
    <message>
        <source>Pulse Trace</source>
        <translation>脉搏轨迹</translation>
    </message>
    <message>
        <source>Phonocardiogram Trace</source>
        <translation>心音图轨迹</translation>
    </message>
    <message>
        <source>Gray bar</source>
        <translation>灰阶条</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>彩色条</translation>
    </message>
    <message>
        <source>Integrated Backscatter</source>
        <translation>积分背向散射</translation>
    </message>
    <message>
        <source>Area Trace</source>
        <translation>面积轨迹</translation>
    </message>
    <message>
        <source>d(area)/dt</source>
        <translation>d(面积)/dt</translation>
    </message>
    <message>
        <source>Other Physiological input</source>
        <translation>其他生理信号</translation>
    </message>
    <message>
        <source>Series Grid</source>
        <translation>序列布局</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>单幅</translation>
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
        <translation>上 1 下 2</translation>
    </message>
    <message>
        <source>2 top, 1 bottom</source>
        <translation>上 2 下 1</translation>
    </message>
    <message>
        <source>1 left, 2 right</source>
        <translation>左 1 右 2</translation>
    </message>
    <message>
        <source>2 left, 1 right</source>
        <translation>左 2 右 1</translation>
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
        <translation>上 1 下 3</translation>
    </message>
    <message>
        <source>3 top, 1 bottom</source>
        <translation>上 3 下 1</translation>
    </message>
    <message>
        <source>1 left, 3 right</source>
        <translation>左 1 右 3</translation>
    </message>
    <message>
        <source>3 left, 1 right</source>
        <translation>左 3 右 1</translation>
    </message>
    <message>
        <source>2 top, 2 bottom</source>
        <translation>上 2 下 2</translation>
    </message>
    <message>
        <source>2 left, 2 right</source>
        <translation>左 2 右 2</translation>
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
        <translation>图像布局</translation>
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
        <translation>其他…</translation>
    </message>
    <message>
        <source>Previous Sequence</source>
        <translation>上一个序列</translation>
    </message>
    <message>
        <source>Next Sequence</source>
        <translation>下一个序列</translation>
    </message>
    <message>
        <source>Mark Sequence</source>
        <translation>标记序列</translation>
    </message>
    <message>
        <source>Unmark Sequence</source>
        <translation>取消标记序列</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>转到</translation>
    </message>
    <message>
        <source>First Frame</source>
        <translation>第一帧</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>上一帧</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>下一帧</translation>
    </message>
    <message>
        <source>Last Frame</source>
        <translation>最后一帧</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Reduce</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Normal Size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Fit in Window</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反相</translation>
    </message>
    <message>
        <source>Show Demographics</source>
        <translation>显示患者信息</translation>
    </message>
    <message>
        <source>Hide Demographics</source>
        <translation>隐藏患者信息</translation>
    </message>
    <message>
        <source>Show Scale</source>
        <translation>显示标尺</translation>
    </message>
    <message>
        <source>Hide Scale</source>
        <translation>隐藏标尺</translation>
    </message>
    <message>
        <source>Show Overlays</source>
        <translation>显示叠加层</translation>
    </message>
    <message>
        <source>Hide Overlays</source>
        <translation>隐藏叠加层</translation>
    </message>
    <message>
        <source>Show Measurements</source>
        <translation>显示测量</translation>
    </message>
    <message>
        <source>Hide Measurements</source>
        <translation>隐藏测量</translation>
    </message>
    <message>
        <source>Show US Regions</source>
        <translation>显示超声区域</translation>
    </message>
    <message>
        <source>Hide US Regions</source>
        <translation>隐藏超声区域</translation>
    </message>
    <message>
        <source>Play Cine</source>
        <translation>播放电影</translation>
    </message>
    <message>
        <source>Stop Cine</source>
        <translation>停止电影</translation>
    </message>
    <message>
        <source>Play All</source>
        <translation>全部播放</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>全部停止</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Stroke On</source>
        <translation>显示轮廓</translation>
    </message>
    <message>
        <source>Stroke Off</source>
        <translation>不显示轮廓</translation>
    </message>
    <message>
        <source>Fill On</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Fill Off</source>
        <translation>不填充</translation>
    </message>
    <message>
        <source>Show Label</source>
        <translation>显示标签</translation>
    </message>
    <message>
        <source>Hide Label</source>
        <translation>隐藏标签</translation>
    </message>
    <message>
        <source>Shadow On</source>
        <translation>显示阴影</translation>
    </message>
    <message>
        <source>Shadow Off</source>
        <translation>不显示阴影</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>置于顶层</translation>
    </message>
    <message>
        <source>Move Forward</source>
        <translation>上移一层</translation>
    </message>
    <message>
        <source>Move Backwards</source>
        <translation>下移一层</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>置于底层</translation>
    </message>
    <message>
        <source>Propagate Measurement</source>
        <translation>传播测量</translation>
    </message>
    <message>
        <source>Delete Measurement</source>
        <translation>删除测量</translation>
    </message>
    <message>
        <source>Delete All Measurements</source>
        <translation>删除所有测量</translation>
    </message>
    <message>
        <source>Meas Contextual</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Grid Contextual</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Table #</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>ww_bw</source>
        <translation>宽</translation>
    </message>
    <message>
        <source>wc_bw</source>
        <translation>位</translation>
    </message>
    <message>
        <source>brightness_bw</source>
        <translation>亮</translation>
    </message>
    <message>
        <source>contrast_bw</source>
        <translation>对</translation>
    </message>
    <message>
        <source>Image window width</source>
        <translation>窗宽</translation>
    </message>
    <message>
        <source>Image window level</source>
        <translation>窗位</translation>
    </message>
    <message>
        <source>Image brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Image contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原始</translation>
    </message>
    <message>
        <source>Unnamed</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Make Preset</source>
        <translation>新建预设</translation>
    </message>
    <message>
        <source>Edit Presets</source>
        <translation>编辑预设</translation>
    </message>
    <message>
        <source>Adjust...</source>
        <translation>调整…</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>调整</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>窗宽</translation>
    </message>
    <message>
        <source>Window Level</source>
        <translation>窗位</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>WWWLValuesExplain</source>
        <translation>从 %1 到 %2</translation>
    </message>
    <message>
        <source>BCValuesExplain</source>
        <translation>从 %1 到 %2</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>帧</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
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
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>图像(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Sequence</source>
        <translation>序列(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cine</source>
        <translation>电影(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>最近打开</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Export Metadata...</source>
        <translation>导出元数据…</translation>
    </message>
    <message>
        <source>Anonymize...</source>
        <translation>匿名化…</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>打印…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Enter Full Screen</source>
        <translation>进入全屏</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>退出全屏</translation>
    </message>
    <message>
        <source>Show Toolbar</source>
        <translation>显示工具栏</translation>
    </message>
    <message>
        <source>Hide Toolbar</source>
        <translation>隐藏工具栏</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Show Patient List</source>
        <translation>显示患者列表</translation>
    </message>
    <message>
        <source>Hide Patient List</source>
        <translation>隐藏患者列表</translation>
    </message>
    <message>
        <source>Show Study Info</source>
        <translation>显示检查信息</translation>
    </message>
    <message>
        <source>Hide Study Info</source>
        <translation>隐藏检查信息</translation>
    </message>
    <message>
        <source>Show Secondary Toolbar</source>
        <translation>显示第二工具栏</translation>
    </message>
    <message>
        <source>Hide Secondary Toolbar</source>
        <translation>隐藏第二工具栏</translation>
    </message>
    <message>
        <source>Show Measurement Pane</source>
        <translation>显示测量面板</translation>
    </message>
    <message>
        <source>Hide Measurement Pane</source>
        <translation>隐藏测量面板</translation>
    </message>
    <message>
        <source>Show Metadata Palette</source>
        <translation>显示元数据面板</translation>
    </message>
    <message>
        <source>Hide Metadata Palette</source>
        <translation>隐藏元数据面板</translation>
    </message>
    <message>
        <source>Mark Current Sequence</source>
        <translation>标记当前序列</translation>
    </message>
    <message>
        <source>Unmark Current Sequence</source>
        <translation>取消标记当前序列</translation>
    </message>
    <message>
        <source>Mark All</source>
        <translation>全部标记</translation>
    </message>
    <message>
        <source>Unmark All</source>
        <translation>全部取消标记</translation>
    </message>
    <message>
        <source>Toggle Marked</source>
        <translation>反转标记</translation>
    </message>
    <message>
        <source>Mark Selected</source>
        <translation>标记所选项</translation>
    </message>
    <message>
        <source>Unmark Selected</source>
        <translation>取消标记所选项</translation>
    </message>
    <message>
        <source>Toggle Marked in Selection</source>
        <translation>反转所选项的标记</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>全部重置</translation>
    </message>
    <message>
        <source>Reset Colors</source>
        <translation>重置颜色</translation>
    </message>
    <message>
        <source>Reset Orientation</source>
        <translation>重置方向</translation>
    </message>
    <message>
        <source>Reset Position</source>
        <translation>重置位置</translation>
    </message>
    <message>
        <source>Reset Measurements</source>
        <translation>重置测量</translation>
    </message>
    <message>
        <source>Original Window</source>
        <translation>原始窗宽窗位</translation>
    </message>
    <message>
        <source>No Color Table</source>
        <translation>无颜色表</translation>
    </message>
    <message>
        <source>Color Table</source>
        <translation>颜色表</translation>
    </message>
    <message>
        <source>Window Presets</source>
        <translation>窗宽窗位预设</translation>
    </message>
    <message>
        <source>Show Reference Lines</source>
        <translation>显示参考线</translation>
    </message>
    <message>
        <source>Hide Reference Lines</source>
        <translation>隐藏参考线</translation>
    </message>
    <message>
        <source>Reference Lines</source>
        <translation>参考线</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Whole Image</source>
        <translation>整幅图像</translation>
    </message>
    <message>
        <source>User Selection</source>
        <translation>用户选择</translation>
    </message>
    <message>
        <source>Propagate Crop</source>
        <translation>传播裁剪</translation>
    </message>
    <message>
        <source>Clear Crop in All Series</source>
        <translation>清除所有序列的裁剪</translation>
    </message>
    <message>
        <source>No regions found</source>
        <translation>未找到区域</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>往复</translation>
    </message>
    <message>
        <source>Play Automatically</source>
        <translation>自动播放</translation>
    </message>
    <message>
        <source>Play Next Series</source>
        <translation>播放下一个序列</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Zoom Tool</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>平移</translation>
    </message>
    <message>
        <source>Window and Level</source>
        <translation>窗宽和窗位</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Calibration Line</source>
        <translation>校准线</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Eyedropper</source>
        <translation>取样器</translation>
    </message>
    <message>
        <source>Apply To</source>
        <translation>应用于</translation>
    </message>
    <message>
        <source>Current Frame</source>
        <translation>当前帧</translation>
    </message>
    <message>
        <source>All Frames of the Sequence</source>
        <translation>序列的所有帧</translation>
    </message>
    <message>
        <source>Demographics</source>
        <translation>患者信息</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>叠加层</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>首选项…</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Acknowledgments</source>
        <translation>致谢</translation>
    </message>
    <message>
        <source>First Aid...</source>
        <translation>急救…</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于 productNameXX</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Reveal Selected in Finder</source>
        <translation>在文件管理器中显示所选项</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Text Only</source>
        <translation>仅文本</translation>
    </message>
    <message>
        <source>Icon Only</source>
        <translation>仅图像</translation>
    </message>
    <message>
        <source>Thumbnail Size</source>
        <translation>缩略图大小</translation>
    </message>
    <message>
        <source>Customize Toolbar...</source>
        <translation>自定工具栏…</translation>
    </message>
    <message>
        <source>Customize Toolbar</source>
        <translation>自定工具栏</translation>
    </message>
    <message>
        <source>Available Items</source>
        <translation>可用项目</translation>
    </message>
    <message>
        <source>Add Item</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove Item</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Move Item Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Item Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Restore Default Items</source>
        <translation>恢复默认</translation>
    </message>
    <message>
        <source>Previous and Next Series</source>
        <translation>上一个和下一个序列</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Rotate and Flip</source>
        <translation>旋转和翻转</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>分隔线</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>Flexible Space</source>
        <translation>弹性空白</translation>
    </message>
</context>
<context>
    <name>Measurements</name>
    <message>
        <source>kGlobalMeasPrefix</source>
        <translation>所有帧: </translation>
    </message>
    <message>
        <source>kMeasDisplayTitle</source>
        <translation>%1%2: %3</translation>
    </message>
    <message>
        <source>kRegionUnitStr_none</source>
        <translation>无</translation>
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
        <translation>不适用</translation>
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
        <translation>频谱</translation>
    </message>
    <message>
        <source>kRegionFormat_WaveForm</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>kRegionFormat_graphics</source>
        <translation>图形</translation>
    </message>
    <message>
        <source>kRegionFormat_none</source>
        <translation>区域</translation>
    </message>
</context>
<context>
    <name>VendorStrings_zel</name>
    <message>
        <source>HelpFileName</source>
        <translation>Zelora Viewer 帮助.pdf</translation>
    </message>
    <message>
        <source>MenuProductName</source>
        <translation>Zelora Viewer</translation>
    </message>
    <message>
        <source>AboutText</source>
        <translation>DICOM 图像查看器。它不是医疗器械：请勿仅凭它作出诊断。</translation>
    </message>
    <message>
        <source>Program Crash Report</source>
        <translation>Zelora Viewer %1 崩溃报告</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Panes</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Pane tip</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>General title</source>
        <translation>常规首选项</translation>
    </message>
    <message>
        <source>DICOM</source>
        <translation>DICOM</translation>
    </message>
    <message>
        <source>DICOM title</source>
        <translation>DICOM 首选项</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Presets title</source>
        <translation>窗宽窗位预设</translation>
    </message>
    <message>
        <source>Presets title tip</source>
        <translation>双击数值可更改；拖动行可移动</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Updates title</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>First layout</source>
        <translation>初始布局</translation>
    </message>
    <message>
        <source>First layout tip</source>
        <translation>打开时窗口如何分给各序列</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Scan subfolders</source>
        <translation>查找子文件夹</translation>
    </message>
    <message>
        <source>Scan subfolders tip</source>
        <translation>也打开文件夹中各文件夹里的内容</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR</source>
        <translation>忽略 DICOMDIR 文件</translation>
    </message>
    <message>
        <source>Ignore DICOMDIR tip</source>
        <translation>即使有列表，也直接读取文件夹中的图像</translation>
    </message>
    <message>
        <source>Open discs</source>
        <translation>插入光盘时打开</translation>
    </message>
    <message>
        <source>Open discs tip</source>
        <translation>带有 DICOMDIR 的光盘一出现即打开</translation>
    </message>
    <message>
        <source>Copy from discs</source>
        <translation>显示前先从光盘复制图像</translation>
    </message>
    <message>
        <source>Copy from discs tip</source>
        <translation>之后可以取出光盘，翻页也更快</translation>
    </message>
    <message>
        <source>Copy from servers</source>
        <translation>将服务器视为慢速光盘</translation>
    </message>
    <message>
        <source>Copy from servers tip</source>
        <translation>也复制网络卷上的图像</translation>
    </message>
    <message>
        <source>Open US and XA large</source>
        <translation>以一个序列打开 US 和 XA</translation>
    </message>
    <message>
        <source>Open US and XA large tip</source>
        <translation>超声和血管造影以一个序列占满整个窗口</translation>
    </message>
    <message>
        <source>Traverse marked</source>
        <translation>只转到已标记的序列</translation>
    </message>
    <message>
        <source>Traverse marked tip</source>
        <translation>电影遍历所有序列时，跳过没有标记的序列</translation>
    </message>
    <message>
        <source>Text and grids</source>
        <translation>文本和网格</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>图像上的文本</translation>
    </message>
    <message>
        <source>Text color tip</source>
        <translation>图像上文本的颜色</translation>
    </message>
    <message>
        <source>Active cell color</source>
        <translation>活动图像</translation>
    </message>
    <message>
        <source>Active cell color tip</source>
        <translation>活动图像边框的颜色</translation>
    </message>
    <message>
        <source>Text font</source>
        <translation>文本字体</translation>
    </message>
    <message>
        <source>Choose font</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Choose font tip</source>
        <translation>图像上文本的字体和大小</translation>
    </message>
    <message>
        <source>Font sample</source>
        <translation>%1 磅 %2</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Outline color</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Outline color tip</source>
        <translation>新测量轮廓的颜色</translation>
    </message>
    <message>
        <source>Fill color</source>
        <translation>填充</translation>
    </message>
    <message>
        <source>Fill color tip</source>
        <translation>新测量内部的颜色</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Merge US</source>
        <translation>合并一个序列的单幅超声图像</translation>
    </message>
    <message>
        <source>Merge US tip</source>
        <translation>从下次打开起生效</translation>
    </message>
    <message>
        <source>Merge XA</source>
        <translation>合并一个序列的单幅血管造影图像</translation>
    </message>
    <message>
        <source>Merge XA tip</source>
        <translation>从下次打开起生效</translation>
    </message>
    <message>
        <source>Decode character sets</source>
        <translation>按字符集读取文本</translation>
    </message>
    <message>
        <source>Decode character sets tip</source>
        <translation>关闭：按旧程序的方式读取文本；从下次打开起生效</translation>
    </message>
    <message>
        <source>Enhance contrast</source>
        <translation>将窗宽窗位限制在图像的值内</translation>
    </message>
    <message>
        <source>Enhance contrast tip</source>
        <translation>关闭：仅按标准公式计算窗宽窗位</translation>
    </message>
    <message>
        <source>Localizers</source>
        <translation>定位像</translation>
    </message>
    <message>
        <source>First and last localizers</source>
        <translation>显示第一条和最后一条线</translation>
    </message>
    <message>
        <source>First and last localizers tip</source>
        <translation>除所示图像的线外，还在其他网格上显示序列的起止位置</translation>
    </message>
    <message>
        <source>Separate localizers</source>
        <translation>分开定位像</translation>
    </message>
    <message>
        <source>Separate localizers tip</source>
        <translation>定位像成为单独的序列；从下次打开起生效</translation>
    </message>
    <message>
        <source>Colors over images</source>
        <translation>图像上的颜色</translation>
    </message>
    <message>
        <source>Overlay color</source>
        <translation>叠加层</translation>
    </message>
    <message>
        <source>Overlay color tip</source>
        <translation>文件自带叠加层的颜色</translation>
    </message>
    <message>
        <source>US region color</source>
        <translation>超声区域</translation>
    </message>
    <message>
        <source>US region color tip</source>
        <translation>超声区域边框的颜色</translation>
    </message>
    <message>
        <source>Localizer color</source>
        <translation>参考线</translation>
    </message>
    <message>
        <source>Localizer color tip</source>
        <translation>参考线的颜色</translation>
    </message>
    <message>
        <source>Cine</source>
        <translation>电影</translation>
    </message>
    <message>
        <source>Cine autoplay</source>
        <translation>立即播放</translation>
    </message>
    <message>
        <source>Cine autoplay tip</source>
        <translation>出现通常播放的序列时电影开始播放</translation>
    </message>
    <message>
        <source>Enforce speed</source>
        <translation>全部使用相同速度</translation>
    </message>
    <message>
        <source>Enforce speed tip</source>
        <translation>无论文件如何规定，都以默认速度播放</translation>
    </message>
    <message>
        <source>Default speed</source>
        <translation>每秒图像数</translation>
    </message>
    <message>
        <source>Default speed tip</source>
        <translation>4 到 60</translation>
    </message>
    <message>
        <source>presetTitle</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>presetTitle tip</source>
        <translation>菜单中的名称</translation>
    </message>
    <message>
        <source>wcPreset</source>
        <translation>窗位</translation>
    </message>
    <message>
        <source>wcPreset tip</source>
        <translation>窗的中心</translation>
    </message>
    <message>
        <source>wwPreset</source>
        <translation>窗宽</translation>
    </message>
    <message>
        <source>wwPreset tip</source>
        <translation>窗的宽度，大于 0</translation>
    </message>
    <message>
        <source>Add preset</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add preset tip</source>
        <translation>在所选预设下方添加预设</translation>
    </message>
    <message>
        <source>Remove preset</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove preset tip</source>
        <translation>移除所选预设 (Delete)</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move up tip</source>
        <translation>上移所选预设 (Alt+上)</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Move down tip</source>
        <translation>下移所选预设 (Alt+下)</translation>
    </message>
    <message>
        <source>Reset presets</source>
        <translation>重置…</translation>
    </message>
    <message>
        <source>Reset presets tip</source>
        <translation>恢复程序自带的预设</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Check now tip</source>
        <translation>查找更新的版本</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>此程序副本不会自行查找更新。新版本会以获得此版本的方式提供。</translation>
    </message>
</context>
<context>
    <name>FirstAid</name>
    <message>
        <source>First Aid</source>
        <translation>急救</translation>
    </message>
    <message>
        <source>CrashTitle</source>
        <translation>Zelora Viewer 上次没有正常结束。</translation>
    </message>
    <message>
        <source>Reset all settings</source>
        <translation>重置所有设置</translation>
    </message>
    <message>
        <source>ResetExplain</source>
        <translation>所有设置恢复为全新安装的状态，程序将重新启动。设置的副本保留在旁边。</translation>
    </message>
    <message>
        <source>Collect crash reports</source>
        <translation>收集崩溃报告</translation>
    </message>
    <message>
        <source>LogsExplain</source>
        <translation>崩溃报告将汇总给您阅读，只有您同意才会通过邮件程序发送。</translation>
    </message>
    <message>
        <source>UserText</source>
        <translation>发生时您在做什么？</translation>
    </message>
    <message>
        <source>Remove older reports afterwards</source>
        <translation>之后移除较早的报告</translation>
    </message>
    <message>
        <source>ClearLogsTip</source>
        <translation>每种报告只保留最后一份</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>No update service</source>
        <translation>未设置更新服务</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>收集</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>查看报告</translation>
    </message>
    <message>
        <source>ReviewExplain</source>
        <translation>离开本机的内容全部在此。可能指向患者或您本人的部分已标出：请将其删去，也可删去您选中的其他内容。</translation>
    </message>
    <message>
        <source>Strike all marked</source>
        <translation>删去所有标出部分</translation>
    </message>
    <message>
        <source>Strike selected</source>
        <translation>删去所选</translation>
    </message>
    <message>
        <source>Next marked</source>
        <translation>下一处标出</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>NotSent</source>
        <translation>没有邮件程序接收该报告。</translation>
    </message>
    <message>
        <source>NotSentExplain</source>
        <translation>请自行发送至 %1。报告保存在文件夹 %2 中。</translation>
    </message>
</context>
<context>
    <name>Viewer</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1（%2 / %3）</translation>
    </message>
    <message>
        <source>&amp;Ignore DICOMDIR</source>
        <translation>忽略 DICOMDIR(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Choose a file or a folder to open</source>
        <translation>选择要打开的文件或文件夹</translation>
    </message>
    <message>
        <source>Drop files, folders or a DICOMDIR here, or choose them:</source>
        <translation>将文件、文件夹或 DICOMDIR 拖放到此处，或进行选择:</translation>
    </message>
    <message>
        <source>Frame %1 of %2</source>
        <translation>第 %1 帧，共 %2 帧</translation>
    </message>
    <message>
        <source>Frame shown, and how many there are</source>
        <translation>显示的帧及总帧数</translation>
    </message>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>包含子文件夹(&amp;S)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Search the folder for images even if a DICOMDIR lists them</source>
        <translation>即使 DICOMDIR 列出图像，也在文件夹中查找</translation>
    </message>
    <message>
        <source>Search the folders in the chosen folder too</source>
        <translation>也在所选文件夹内的文件夹中查找</translation>
    </message>
    <message>
        <source>Stop opening (Escape)</source>
        <translation>停止打开 (Esc)</translation>
    </message>
    <message>
        <source>There are no frames to show</source>
        <translation>没有可显示的帧</translation>
    </message>
    <message>
        <source>This frame can't be shown</source>
        <translation>无法显示此帧</translation>
    </message>
    <message>
        <source>What was open lately</source>
        <translation>最近打开的内容</translation>
    </message>
    <message>
        <source>Window %1, level %2</source>
        <translation>窗宽 %1，窗位 %2</translation>
    </message>
    <message>
        <source>Window width and level of this frame</source>
        <translation>此帧的窗宽和窗位</translation>
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
        <translation>姓名</translation>
    </message>
    <message>
        <source>Patient ID</source>
        <translation>患者 ID</translation>
    </message>
    <message>
        <source>Date of Birth</source>
        <translation>出生日期</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>性别</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>年龄</translation>
    </message>
    <message>
        <source>Size (m)</source>
        <translation>身高 (m)</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>体重 (kg)</translation>
    </message>
    <message>
        <source>Allergies</source>
        <translation>过敏</translation>
    </message>
    <message>
        <source>Pregnancy Status</source>
        <translation>妊娠状态</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Study ID</source>
        <translation>检查 ID</translation>
    </message>
    <message>
        <source>Accession Number</source>
        <translation>检查号</translation>
    </message>
    <message>
        <source>Referring Physician</source>
        <translation>申请医师</translation>
    </message>
    <message>
        <source>Reading Physician</source>
        <translation>阅片医师</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>序列</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Modality</source>
        <translation>设备类型</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>协议</translation>
    </message>
    <message>
        <source>Body Part</source>
        <translation>部位</translation>
    </message>
    <message>
        <source>Laterality</source>
        <translation>侧别</translation>
    </message>
    <message>
        <source>Patient Position</source>
        <translation>患者体位</translation>
    </message>
    <message>
        <source>Performing Physician</source>
        <translation>执行医师</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作员</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Institution</source>
        <translation>机构</translation>
    </message>
    <message>
        <source>Department</source>
        <translation>科室</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>工作站</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比剂</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>药剂</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>途径</translation>
    </message>
    <message>
        <source>Volume (ml)</source>
        <translation>用量 (ml)</translation>
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
        <translation>图像</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Instance Number</source>
        <translation>图像编号</translation>
    </message>
    <message>
        <source>Acquisition Date</source>
        <translation>采集日期</translation>
    </message>
    <message>
        <source>Acquisition Time</source>
        <translation>采集时间</translation>
    </message>
    <message>
        <source>Content Date</source>
        <translation>内容日期</translation>
    </message>
    <message>
        <source>Content Time</source>
        <translation>内容时间</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>帧数</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列数</translation>
    </message>
    <message>
        <source>Bits Stored</source>
        <translation>存储位数</translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation>光度解释</translation>
    </message>
    <message>
        <source>Pixel Spacing (mm)</source>
        <translation>像素间距 (mm)</translation>
    </message>
    <message>
        <source>Lossy Compression</source>
        <translation>有损压缩</translation>
    </message>
    <message>
        <source>Compression Ratio</source>
        <translation>压缩比</translation>
    </message>
    <message>
        <source>Window Width</source>
        <translation>窗宽</translation>
    </message>
    <message>
        <source>Window Center</source>
        <translation>窗位</translation>
    </message>
    <message>
        <source>View Position</source>
        <translation>投照体位</translation>
    </message>
    <message>
        <source>Slice</source>
        <translation>层面</translation>
    </message>
    <message>
        <source>Slice Thickness (mm)</source>
        <translation>层厚 (mm)</translation>
    </message>
    <message>
        <source>Slice Spacing (mm)</source>
        <translation>层间距 (mm)</translation>
    </message>
    <message>
        <source>Slice Location (mm)</source>
        <translation>层面位置 (mm)</translation>
    </message>
    <message>
        <source>Image Position (mm)</source>
        <translation>图像位置 (mm)</translation>
    </message>
    <message>
        <source>Image Orientation</source>
        <translation>图像方向</translation>
    </message>
    <message>
        <source>X-Ray</source>
        <translation>X 射线</translation>
    </message>
    <message>
        <source>Tube Voltage (kV)</source>
        <translation>管电压 (kV)</translation>
    </message>
    <message>
        <source>Tube Current (mA)</source>
        <translation>管电流 (mA)</translation>
    </message>
    <message>
        <source>Exposure Time (ms)</source>
        <translation>曝光时间 (ms)</translation>
    </message>
    <message>
        <source>Exposure (mAs)</source>
        <translation>曝光量 (mAs)</translation>
    </message>
    <message>
        <source>Dose Area Product (dGy·cm²)</source>
        <translation>剂量面积乘积 (dGy·cm²)</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>滤过</translation>
    </message>
    <message>
        <source>Focal Spot (mm)</source>
        <translation>焦点 (mm)</translation>
    </message>
    <message>
        <source>Source to Detector (mm)</source>
        <translation>源到探测器距离 (mm)</translation>
    </message>
    <message>
        <source>Source to Patient (mm)</source>
        <translation>源到患者距离 (mm)</translation>
    </message>
    <message>
        <source>Primary Angle (°)</source>
        <translation>主角度 (°)</translation>
    </message>
    <message>
        <source>Secondary Angle (°)</source>
        <translation>次角度 (°)</translation>
    </message>
    <message>
        <source>Body Part Thickness (mm)</source>
        <translation>体厚 (mm)</translation>
    </message>
    <message>
        <source>Compression Force (N)</source>
        <translation>压迫力 (N)</translation>
    </message>
    <message>
        <source>Organ Dose (dGy)</source>
        <translation>器官剂量 (dGy)</translation>
    </message>
    <message>
        <source>CT</source>
        <translation>CT</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>卷积核</translation>
    </message>
    <message>
        <source>Reconstruction Diameter (mm)</source>
        <translation>重建直径 (mm)</translation>
    </message>
    <message>
        <source>Collection Diameter (mm)</source>
        <translation>采集直径 (mm)</translation>
    </message>
    <message>
        <source>Gantry Tilt (°)</source>
        <translation>机架倾角 (°)</translation>
    </message>
    <message>
        <source>Table Height (mm)</source>
        <translation>床高 (mm)</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>螺距</translation>
    </message>
    <message>
        <source>CTDIvol (mGy)</source>
        <translation>CTDIvol (mGy)</translation>
    </message>
    <message>
        <source>Scan Options</source>
        <translation>扫描选项</translation>
    </message>
    <message>
        <source>Rescale Intercept</source>
        <translation>截距</translation>
    </message>
    <message>
        <source>Rescale Slope</source>
        <translation>斜率</translation>
    </message>
    <message>
        <source>MR</source>
        <translation>MR</translation>
    </message>
    <message>
        <source>Scanning Sequence</source>
        <translation>扫描序列</translation>
    </message>
    <message>
        <source>Sequence Variant</source>
        <translation>序列变体</translation>
    </message>
    <message>
        <source>Sequence Name</source>
        <translation>序列名称</translation>
    </message>
    <message>
        <source>Acquisition Type</source>
        <translation>采集类型</translation>
    </message>
    <message>
        <source>Field Strength (T)</source>
        <translation>场强 (T)</translation>
    </message>
    <message>
        <source>Repetition Time (ms)</source>
        <translation>重复时间 (ms)</translation>
    </message>
    <message>
        <source>Echo Time (ms)</source>
        <translation>回波时间 (ms)</translation>
    </message>
    <message>
        <source>Inversion Time (ms)</source>
        <translation>反转时间 (ms)</translation>
    </message>
    <message>
        <source>Flip Angle (°)</source>
        <translation>翻转角 (°)</translation>
    </message>
    <message>
        <source>Echo Train Length</source>
        <translation>回波链长度</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>平均次数</translation>
    </message>
    <message>
        <source>Pixel Bandwidth (Hz)</source>
        <translation>像素带宽 (Hz)</translation>
    </message>
    <message>
        <source>Receive Coil</source>
        <translation>接收线圈</translation>
    </message>
    <message>
        <source>SAR (W/kg)</source>
        <translation>SAR (W/kg)</translation>
    </message>
    <message>
        <source>Ultrasound and Cine</source>
        <translation>超声和电影</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>阶段</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Transducer</source>
        <translation>探头</translation>
    </message>
    <message>
        <source>Frame Time (ms)</source>
        <translation>帧时间 (ms)</translation>
    </message>
    <message>
        <source>Cine Rate (1/s)</source>
        <translation>电影速率 (1/s)</translation>
    </message>
    <message>
        <source>Display Rate (1/s)</source>
        <translation>显示速率 (1/s)</translation>
    </message>
    <message>
        <source>Heart Rate (1/min)</source>
        <translation>心率 (1/min)</translation>
    </message>
    <message>
        <source>Mechanical Index</source>
        <translation>机械指数</translation>
    </message>
    <message>
        <source>Thermal Index Soft Tissue</source>
        <translation>软组织热指数</translation>
    </message>
    <message>
        <source>Depth of Scan Field (mm)</source>
        <translation>扫描深度 (mm)</translation>
    </message>
    <message>
        <source>Nuclear Medicine and PET</source>
        <translation>核医学和 PET</translation>
    </message>
    <message>
        <source>Radiopharmaceutical</source>
        <translation>放射性药物</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Decay Correction</source>
        <translation>衰变校正</translation>
    </message>
    <message>
        <source>Counts Accumulated</source>
        <translation>累积计数</translation>
    </message>
    <message>
        <source>Frame Duration (ms)</source>
        <translation>帧时长 (ms)</translation>
    </message>
    <message>
        <source>Reconstruction Method</source>
        <translation>重建方法</translation>
    </message>
    <message>
        <source>Attenuation Correction</source>
        <translation>衰减校正</translation>
    </message>
</context>
</TS>
