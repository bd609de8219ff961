<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Sonalyx</name>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="20"/>
        <source>Cannot divide by zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="21"/>
        <source>Result is undefined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="22"/>
        <source>Invalid input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="23"/>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="14"/>
        <source>The expression is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="16"/>
        <source>The expression ends too early.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="18"/>
        <source>Missing closing bracket.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="20"/>
        <source>Unknown name %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="22"/>
        <source>%s needs its argument in brackets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="24"/>
        <source>Unexpected &quot;%s&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="26"/>
        <source>The expression is nested too deeply.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="28"/>
        <source>Write a * between a number and x.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="30"/>
        <source>The expression is longer than %s characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="44"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="136"/>
        <location filename="../src/core/pages/DataPageSession.cpp" line="76"/>
        <location filename="../src/core/pages/EvaluatorSession.h" line="44"/>
        <source>Invalid entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetFile.h" line="23"/>
        <source>SLX Data Files (*.set)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="19"/>
        <source>No points were found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="21"/>
        <source>A data set holds at most %d points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="25"/>
        <source>The text is too large for a data set of at most %d points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="30"/>
        <source>Line %d does not hold two numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="11"/>
        <source>No error occurred.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="12"/>
        <source>An unspecified error occurred.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="13"/>
        <source>The file could not be located.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="14"/>
        <source>All or part of the path is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="15"/>
        <source>The permitted number of open files was exceeded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="16"/>
        <source>The file could not be accessed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="17"/>
        <source>There was an attempt to use an invalid file handle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="18"/>
        <source>The current working directory cannot be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="19"/>
        <source>There are no more directory entries.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="20"/>
        <source>There was an error trying to set the file pointer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="21"/>
        <source>There was a hardware error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="22"/>
        <source>SHARE.EXE was not loaded, or a shared region was locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="23"/>
        <source>There was an attempt to lock a region that was already locked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="24"/>
        <source>The disk is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="25"/>
        <source>The end of file was reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="11"/>
        <source>File Open Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="12"/>
        <source>File Save Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="9"/>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="59"/>
        <source>No data set found - nothing to save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="10"/>
        <source>Wave File Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="11"/>
        <source>Wave Files (*.wav)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="17"/>
        <source>Basic Statistical Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="18"/>
        <source>Linear: y = a + bx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="19"/>
        <source>Quadratic: y = ax^2 + bx + c</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="20"/>
        <source>Cubic: y = ax^3 + bx^2 + cx + d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="21"/>
        <source>Quartic: y = ax^4 + bx^3 + cx^2 + dx + e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="22"/>
        <source>Exponential: y = a b^x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="23"/>
        <source>Logarithmic: y = a + b*ln(x)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="24"/>
        <source>Power: y = a x^b</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="25"/>
        <source>Hyperbolic: y = a + b/x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="26"/>
        <source>Rational: y = a / (b + x)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="27"/>
        <source>Rational: y = ax / (b + x)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="28"/>
        <source>Logistic: y = c / (1 + a*exp(-b*x))</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="29"/>
        <source>Sinusoidal: y = a sin(bx+c) + d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FitText.cpp" line="19"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="146"/>
        <source>Start must be below finish.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="150"/>
        <source>At least 2 points are needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="154"/>
        <source>At most %d points can be sampled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="167"/>
        <source>Point allocation error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="180"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="196"/>
        <source>Range error: Check plot settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="27"/>
        <source>These points cannot be fitted by this model.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="37"/>
        <source>Regression analysis:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="56"/>
        <source>All x values are equal: no line can be fitted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="79"/>
        <source>undefined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="91"/>
        <source>Not enough points for fit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="96"/>
        <source>Invalid data set for polynomial fit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="168"/>
        <source>Invalid data set.  Y values must be &gt; 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="179"/>
        <source>Invalid data set.  X values must be &gt; 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="188"/>
        <source>Invalid data set.  X and Y values must be &gt; 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="199"/>
        <location filename="../src/core/math/RegressionFit.cpp" line="220"/>
        <source>Invalid data set.  X values cannot = 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="235"/>
        <source>Invalid data set for logistic fit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="248"/>
        <source>Invalid data set for sinusoidal fit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="47"/>
        <source>Sum of x values:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="48"/>
        <source>Mean value of x:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="49"/>
        <source>Sample standard deviation of x:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="50"/>
        <source>Population standard deviation of x:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="52"/>
        <source>Sum of y values:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="53"/>
        <source>Mean value of y:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="54"/>
        <source>Sample standard deviation of y:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="55"/>
        <source>Population standard deviation of y:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="102"/>
        <source>%s holds the fitted curve: %d points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="103"/>
        <source>%s is ready: %d points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="148"/>
        <source>The clipboard does not hold a table of points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="158"/>
        <source>%s: %d points pasted. Ctrl+Z brings back the previous set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="172"/>
        <source>%s: %d points read from %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="188"/>
        <source>Nothing to undo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="198"/>
        <source>%s is back as it was: %d points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="54"/>
        <source>user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="55"/>
        <source>clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="56"/>
        <source>file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="42"/>
        <source>Expression : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="43"/>
        <source>Result : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="45"/>
        <source>A variable refers to itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="41"/>
        <source>Matrix Expression:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="42"/>
        <source>Error: Invalid matrix expression.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/NumberEntry.cpp" line="52"/>
        <source>%s must be a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="35"/>
        <source>Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="15"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="27"/>
        <source>Invalid function domain. Start must be less than Finish.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="29"/>
        <source>Invalid graph X range. X min must be less than X max.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="31"/>
        <source>Invalid graph Y range. Y min must be less than Y max.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="76"/>
        <source>The number of points must be from %d to %d.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="59"/>
        <source>The width must be from %s to %s inches, the page&apos;s width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="64"/>
        <source>The height must be from %s to %s inches, the page&apos;s height.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="70"/>
        <source>The number of copies must be from %d to %d.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="76"/>
        <source>%.1f x %.1f inches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="83"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="60"/>
        <source>y-axis times %s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/SpeechPageForm.cpp" line="27"/>
        <source>The number of decimal places must be from %d to %d.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="32"/>
        <source>The number of tick marks must be from %d to %d.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="36"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="78"/>
        <source>Y Threshold Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/settings/FirstStart.h" line="17"/>
        <source>Self-voicing is on; Control+Q switches it off and on again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="18"/>
        <source>The data set is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>Last point.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>First point.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further maximum.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further minimum.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="124"/>
        <source>No further crossing of the x-axis.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="127"/>
        <source>No earlier crossing of the x-axis.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="134"/>
        <source>Data set 2 is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="135"/>
        <source>Data set 1 is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="142"/>
        <source>No further crossing of the two data sets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/sound/PlayTimeLimit.cpp" line="13"/>
        <source>The play time must be from %d to %d seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="12"/>
        <source>hexadecimal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="12"/>
        <source>decimal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="13"/>
        <source>octal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="13"/>
        <source>binary.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>degrees.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>radians.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="15"/>
        <source>grad.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="9"/>
        <source>Display. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="10"/>
        <source>inverse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="11"/>
        <source>hyperbolic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="12"/>
        <source>right shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="14"/>
        <source>Hyperbolic check box: checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="15"/>
        <source>Hyperbolic check box: unchecked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="16"/>
        <source>Inverse check box: checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="17"/>
        <source>Inverse check box: unchecked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="23"/>
        <source>backspace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="41"/>
        <source>left shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="45"/>
        <source>e to the x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="50"/>
        <source>x to the power y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="51"/>
        <source>square root</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="52"/>
        <source>one over x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="53"/>
        <source>n factorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="57"/>
        <source>plus minus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="59"/>
        <source>memory store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="65"/>
        <source>memory plus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="70"/>
        <source>pie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="71"/>
        <source>memory clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="73"/>
        <source>times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="74"/>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="53"/>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="68"/>
        <source>minus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="77"/>
        <source>memory recall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="47"/>
        <source>x = %1, y = %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="52"/>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="67"/>
        <source>times ten to the</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="58"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="186"/>
        <location filename="../src/ui/pages/CSettingsPage.cpp" line="41"/>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="59"/>
        <source>Infinity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> minus </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> plus </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> times </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> divide </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> begin matrix </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> end matrix </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> column </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> row </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> to the power of </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> open paren </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> close paren </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak only what the screen reader cannot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="18"/>
        <source>%1 (%2 to %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="166"/>
        <source>Voice %1, rate %2, pitch %3, volume %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="176"/>
        <source>%1 pronounces words by the rules of voice %2; it has no user lexicon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="10"/>
        <source>Self-voicing activated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="12"/>
        <source>Self-voicing deactivated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="39"/>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="43"/>
        <source>Licence: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="53"/>
        <source>Libraries used: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="58"/>
        <source>About Sonalyx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="66"/>
        <location filename="../src/ui/app/ProductInfo.h" line="17"/>
        <source>Sonalyx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="70"/>
        <source>with Sonitrace Technology</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="73"/>
        <source>The Sonalyx is a scientific graphing </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="74"/>
        <source>calculator.  It provides standard functions for computation and two </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="75"/>
        <source>dimensional graphing of mathematical expressions.  The Program is </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="76"/>
        <source>entirely self-voicing and provides auditory response for program navigation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="81"/>
        <source>Send comments and suggestions to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="91"/>
        <source>This program supplied as is.  No implied or </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="92"/>
        <source>expressed warranty exists for the performance </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="93"/>
        <source>and function of this software.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="96"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="78"/>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="44"/>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="23"/>
        <source>button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="25"/>
        <source>check box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="27"/>
        <source>radio button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="29"/>
        <source>edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="31"/>
        <source>combo box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="33"/>
        <source>list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="35"/>
        <source>list item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="37"/>
        <source>tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="39"/>
        <source>tree item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="41"/>
        <source>table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="43"/>
        <source>cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="45"/>
        <source>spin box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="47"/>
        <source>slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="49"/>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="51"/>
        <source>link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="53"/>
        <source>tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="55"/>
        <source>menu item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>not checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="401"/>
        <source>&amp;Hide Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="402"/>
        <source>&amp;Show Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>Print Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>No data set found - nothing to print.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: enabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: disabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="58"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="110"/>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="59"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="40"/>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="128"/>
        <source>. Grayed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="32"/>
        <source>&amp;Open Data Set ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="33"/>
        <source>&amp;Save Data Set ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="34"/>
        <source>&amp;Paste Data From Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="35"/>
        <source>&amp;Copy Data To Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="36"/>
        <source>&amp;Load Constants ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="37"/>
        <source>Sa&amp;ve Constants ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="38"/>
        <source>Res&amp;tore Default Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="39"/>
        <source>P&amp;rint GraphTABCtrl+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="41"/>
        <source>&amp;Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="42"/>
        <source>&amp;Evaluator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="43"/>
        <source>Data Set &amp;1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="44"/>
        <source>Data Set &amp;2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="45"/>
        <source>&amp;Matrices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="46"/>
        <source>&amp;Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="47"/>
        <source>&amp;Calculus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="48"/>
        <source>&amp;Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="49"/>
        <source>&amp;Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="50"/>
        <source>&amp;Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="51"/>
        <source>Speec&amp;h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="52"/>
        <source>&amp;Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="53"/>
        <source>&amp;Play Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="54"/>
        <source>&amp;Frequency Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="55"/>
        <source>&amp;Wave Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="56"/>
        <source>&amp;AutoReturn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="57"/>
        <source>Self-&amp;VoicingTABCtrl+Q, Alt+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="58"/>
        <source>&amp;LargerTABF8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="59"/>
        <source>&amp;SmallerTABF7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="60"/>
        <source>&amp;Evaluate Expression 1TABF4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="61"/>
        <source>&amp;Play Data SetTABF5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="62"/>
        <source>Play Data and &amp;TicksTABF6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="63"/>
        <source>&amp;Write Wave File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="64"/>
        <source>Find &amp;IntersectionTABAlt+I</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="65"/>
        <source>Find &amp;ZerosTABAlt+0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="66"/>
        <source>&amp;Show GraphTABF3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="68"/>
        <source>&amp;User ManualTABF1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="69"/>
        <source>&amp;Calculator Hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="70"/>
        <source>&amp;Graphing Hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="71"/>
        <source>&amp;Navigational Hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="79"/>
        <source>&amp;Online Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="80"/>
        <source>&amp;About the Sonalyx ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="124"/>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="130"/>
        <source>&amp;Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="138"/>
        <source>&amp;Wave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="151"/>
        <source>&amp;Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="161"/>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="38"/>
        <source>Open Data Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="63"/>
        <source>Save Data Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="72"/>
        <source>Saved %1 points as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="82"/>
        <source>%1 points copied to the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="26"/>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="28"/>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="30"/>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="32"/>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="34"/>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="36"/>
        <source>Page Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="38"/>
        <source>Page Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="40"/>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="42"/>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="44"/>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="46"/>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="60"/>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Ctrl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="61"/>
        <location filename="../src/ui/app/KeyList.cpp" line="219"/>
        <source>Alt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="62"/>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Backspace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="130"/>
        <source>Stops the sound of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="132"/>
        <source>Steps to the next point of the graph and says it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="134"/>
        <source>Steps to the previous point of the graph and says it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="136"/>
        <source>Steps to the next maximum of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="138"/>
        <source>Steps to the next minimum of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="140"/>
        <source>Goes to the first point of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="142"/>
        <source>Goes to the last point of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="144"/>
        <source>On the Matrix page: copies the matrix as a picture and as text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="146"/>
        <source>Steps back to the previous place where the graph crosses the x-axis.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="156"/>
        <source>Says the display.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="158"/>
        <source>Says the memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="160"/>
        <source>Ticks or clears Hyperbolic.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="162"/>
        <source>Ticks or clears Inverse.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="164"/>
        <source>Right shift.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="166"/>
        <source>Recalls the memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="174"/>
        <source>Goes to the next tab of the control panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="175"/>
        <source>Goes to the previous tab of the control panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="176"/>
        <source>Goes to the next control of the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="177"/>
        <source>Goes to the previous control of the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="178"/>
        <source>On the tabs: goes to the tab beside.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="180"/>
        <source>In a group of choices: chooses the one above or below; in a list: the item above or below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="181"/>
        <source>Presses the button, or ticks or clears the box, that has the focus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="183"/>
        <source>On a slider: moves it by one, by a page, or to an end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="184"/>
        <source>Opens the menu bar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="185"/>
        <source>Closes a menu or a dialog.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="237"/>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source> or </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="260"/>
        <source>On the Evaluator and Matrix pages: evaluates the expression, or stores name = expression.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="261"/>
        <source>On the Evaluator and Matrix pages: brings earlier entries back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="262"/>
        <source>On the Data pages, in f(x): fills the table with f(x) over the function&apos;s domain.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="263"/>
        <source>On the Data pages: undoes a paste or a load of the data set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="288"/>
        <source>Moving around the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="289"/>
        <source>Hot keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="290"/>
        <source>The graph and its sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="306"/>
        <source>The menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="307"/>
        <source>The Calculator page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="308"/>
        <source>The Evaluator, Matrix and Data pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="313"/>
        <location filename="../src/ui/app/KeyList.cpp" line="323"/>
        <source>Sonalyx keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="314"/>
        <source>Navigational hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="315"/>
        <source>Graphing hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="316"/>
        <source>Calculator hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="336"/>
        <source>This list is made from the program&apos;s own tables of keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="337"/>
        <source>Back to the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>What they do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="21"/>
        <location filename="../src/ui/app/ProductInfo.h" line="31"/>
        <source>GNU General Public License, version 3 or later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="30"/>
        <source>GNU Lesser General Public License, version 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="32"/>
        <location filename="../src/ui/app/ProductInfo.h" line="34"/>
        <location filename="../src/ui/app/ProductInfo.h" line="35"/>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="33"/>
        <source>zlib License</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="36"/>
        <source>Mozilla Public License, version 2.0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="37"/>
        <source>GNU General Public License, version 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="44"/>
        <source>Button. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="47"/>
        <source>Check box. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="50"/>
        <source>Radio button. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="57"/>
        <source> Checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <source> Unchecked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSEdit.cpp" line="42"/>
        <source>Backspace. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSListBox.cpp" line="22"/>
        <source>Blank line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSStatic.cpp" line="21"/>
        <source>Label. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSTabCtrl.cpp" line="18"/>
        <source>screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="78"/>
        <source>SLX - Data Plot Print Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="84"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="94"/>
        <source>Printer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="88"/>
        <source>No printer installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="89"/>
        <source>With no printer, Print saves the graph as a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="95"/>
        <source>Print to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="96"/>
        <source>Saves the page as a PDF file instead of printing it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="103"/>
        <source>File name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <source>File name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="100"/>
        <source>The PDF file the page is saved in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="115"/>
        <source>Font:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="113"/>
        <source>Font size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <source>Font size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="117"/>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="131"/>
        <source>Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="120"/>
        <source>The graph&apos;s width on paper, in inches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="132"/>
        <source>Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="123"/>
        <source>The graph&apos;s height on paper, in inches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="125"/>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="126"/>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="136"/>
        <source>Paper size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <source>Paper size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="139"/>
        <source>Number of copies:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <source>Number of copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="143"/>
        <source>Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="141"/>
        <source>Printed above the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="145"/>
        <source>Data Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw Data Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw line through points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="148"/>
        <source>Draw both line and data points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="156"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="122"/>
        <source>Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="158"/>
        <source>Show X-Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="159"/>
        <source>Show Y-Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="164"/>
        <source>Axis Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="166"/>
        <source>X Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="167"/>
        <source>Y Labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="172"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="58"/>
        <source>Tick Marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>No Tick Marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>Grid Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="182"/>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="190"/>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="191"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="79"/>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="45"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="240"/>
        <source>No printer is installed: the graph can only be saved as a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="380"/>
        <source>Type the name of the PDF file to save the graph in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="400"/>
        <source>The graph could not be printed on %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="403"/>
        <source>The graph is printed on %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="404"/>
        <source>The graph is saved in %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="426"/>
        <source>No printer is installed: Print saves the graph as a PDF file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="74"/>
        <source>Write Wave File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="94"/>
        <source>Wave file written: %s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="32"/>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="84"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="26"/>
        <source>Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>x:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>y:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>Point:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="60"/>
        <source>Data Set 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="61"/>
        <source>Data Set 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <source>Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="53"/>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="77"/>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="62"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="64"/>
        <source>f(x) = </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="74"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="221"/>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="78"/>
        <source>Coordinates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="80"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="82"/>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="81"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="83"/>
        <source>Polar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 1 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 2 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="103"/>
        <source>Statistical Description of Data Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="106"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="108"/>
        <source>Mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="118"/>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="46"/>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="120"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="121"/>
        <source>Plot Fitted Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="130"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Evaluate Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="135"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="136"/>
        <source>Plot Data Set 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="250"/>
        <source>Empty Data Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="251"/>
        <source>No data plotted -- nothing to calculate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Return to Data Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="273"/>
        <source>Sinusoidal Fit Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="274"/>
        <source>Period: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="276"/>
        <source>Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="277"/>
        <source>Use Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="291"/>
        <source>A fit needs at least two points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="25"/>
        <source>x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="27"/>
        <source>f(x)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="29"/>
        <source>d(f(x))/dx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="31"/>
        <source>f(x)dx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="33"/>
        <source>Trend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="63"/>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="117"/>
        <source>new point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="64"/>
        <source>blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="70"/>
        <source>New point.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="71"/>
        <source>Row %1: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataTableView.cpp" line="46"/>
        <source>Empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source>Keyboard: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="127"/>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="128"/>
        <source>Ctrl+B says the display again, Ctrl+T the memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="142"/>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="143"/>
        <source>Shows M while the memory holds a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Hex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Dec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Oct</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Bin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="153"/>
        <source>Number base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="153"/>
        <source>Hexadecimal, decimal, octal or binary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Deg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Rad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Grad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Angle unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Degrees, radians or grad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="179"/>
        <source>Inv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="181"/>
        <source>Hyp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="320"/>
        <source>Memory is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="324"/>
        <source>Memory: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="30"/>
        <source>Expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="32"/>
        <source>Enter evaluates it or stores name = expression; Up and Down bring earlier entries back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="33"/>
        <source>Expression:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="39"/>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="40"/>
        <source>The result of the last entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="41"/>
        <source>Result:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="47"/>
        <source>Every entry with its result, the newest first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="37"/>
        <source>Matrix expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="38"/>
        <source>Enter evaluates it or stores NAME = expression; ANS is the last result; Up and Down bring earlier entries back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="89"/>
        <source>Matrix copied to the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="90"/>
        <source>There is no matrix to copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="54"/>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="161"/>
        <source>Matrix display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="56"/>
        <source>The last result, typeset; its context menu copies it to the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="191"/>
        <source>Copy To Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Where f(x) is first sampled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="35"/>
        <source>Finish:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="36"/>
        <source>Where f(x) is last sampled; above Start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source># Pts:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="38"/>
        <source>How many points f(x) is sampled at.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>The left end of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>The right end of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>The bottom of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>The top of the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="57"/>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="62"/>
        <source>Sum (1+2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1-2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1 minus 2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="72"/>
        <source>Calculus Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="74"/>
        <source>Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="74"/>
        <source>Integral</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="75"/>
        <source>Derivative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="94"/>
        <source>Function Domain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="99"/>
        <source>Graph Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="104"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="109"/>
        <source>Auto-Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="105"/>
        <source>X Auto-Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="110"/>
        <source>Y Auto-Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="113"/>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="116"/>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="118"/>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="120"/>
        <source>Error Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="125"/>
        <source>Show X-axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="128"/>
        <source>Show Y-axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="129"/>
        <source>Display X labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="131"/>
        <source>Display Y labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="134"/>
        <source>Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>No ticks or grid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Tick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="46"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="161"/>
        <source>Lexicon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="51"/>
        <source>Pronunciations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="52"/>
        <source>Each word and how the voice says it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="53"/>
        <source>Pronunciations:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="57"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="63"/>
        <source>Word:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="58"/>
        <source>The word as the program writes it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="60"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="64"/>
        <source>Say as:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="61"/>
        <source>How the voice is to say it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Puts the word and how to say it in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Takes the chosen word out of the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="112"/>
        <source>Type a word first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="121"/>
        <source>Added %1, said as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="127"/>
        <source>The list is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="133"/>
        <source>Removed %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="23"/>
        <source>eSpeak NG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="24"/>
        <source>System speech service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="30"/>
        <source>Speech engine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="32"/>
        <source>Speak with:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="46"/>
        <source>No speech engine is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="47"/>
        <source>Speech engine: %1. Voice: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="54"/>
        <source>About TTS. This button tells the name, version and voice of your speech engine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="56"/>
        <source>General. This button chooses the speech engine: eSpeak NG or the system&apos;s speech service.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="57"/>
        <source>Translate. This button only says what it is for: Sonalyx speaks in the language of your desktop, so choose a voice of that language in the list of voices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="61"/>
        <source>Lexicon. This button opens the pronunciation list: words and how the voice says them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="68"/>
        <source>Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="74"/>
        <source>Number of decimal places to voice:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <source>Number of decimal places to voice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="72"/>
        <source>How many decimal places spoken numbers keep, from 0 to 15.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="85"/>
        <source>Voice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="89"/>
        <source>Voices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="90"/>
        <source>The voices of the speech engine; the chosen one speaks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="92"/>
        <source>Voices:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>How fast the voice speaks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>How high the voice speaks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="52"/>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <source>How loud the voice speaks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="109"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="121"/>
        <source>Self-Voicing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="123"/>
        <source>Sound Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="125"/>
        <source>Allow Self-Voicing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="128"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="135"/>
        <source>Beside a screen reader:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="129"/>
        <source>What self-voicing says while a screen reader runs: everything, or only what the screen reader cannot know.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: unchecked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="156"/>
        <source>Speech Engine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="158"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="252"/>
        <source>About TTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="159"/>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="160"/>
        <source>Translate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="268"/>
        <source>SONALYX_SPEECH chooses the engine of this run; %1 speaks from the next start without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="270"/>
        <source>%1 speaks now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="273"/>
        <source>%1 cannot start here; the voice stays as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="40"/>
        <source>Play Time (%d sec.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set volume:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="55"/>
        <source>How loud the curve plays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="57"/>
        <source>Tick Marks:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>Tick volume:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="63"/>
        <source>How loud the tick marks click.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="70"/>
        <source># of vertical tick marks:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <source>Number of vertical tick marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="68"/>
        <source>How many tick marks a sweep passes, from 5 to 15.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="75"/>
        <source>Y Threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="77"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y Threshold Level:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y threshold level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="81"/>
        <source>Below this y the tone turns buzzier, so you hear where the curve passes it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>Play time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="90"/>
        <source>How long the whole curve plays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="109"/>
        <source>Wave Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="111"/>
        <source>Mono output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="112"/>
        <source>Stereo output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="121"/>
        <source>Frequency Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Frequency minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>hertz.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="124"/>
        <source>The pitch of the lowest y.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Frequency maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="127"/>
        <source>The pitch of the highest y.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="134"/>
        <source>Auto-speak Coordinates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="136"/>
        <source>Speak X and Y values at each step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Wave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Speech</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Evaluator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="60"/>
        <source>Control panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
