<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>Sonalyx</name>
    <message>
        <location filename="../src/cli/StepCommand.cpp" line="101"/>
        <location filename="../src/cli/TextCommand.cpp" line="101"/>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="74"/>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="53"/>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="68"/>
        <location filename="../src/ui/app/Voice.cpp" line="15"/>
        <source>minus</source>
        <translation>minus</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="20"/>
        <source>Cannot divide by zero</source>
        <translation>Kan inte dela med noll</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="21"/>
        <source>Result is undefined</source>
        <translation>Resultatet är odefinierat</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="22"/>
        <source>Invalid input</source>
        <translation>Ogiltig inmatning</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="23"/>
        <source>Overflow</source>
        <translation>Spill</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="14"/>
        <source>The expression is empty.</source>
        <translation>Uttrycket är tomt.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="16"/>
        <source>The expression ends too early.</source>
        <translation>Uttrycket tar slut för tidigt.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="18"/>
        <source>Missing closing bracket.</source>
        <translation>En avslutande parentes saknas.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="20"/>
        <source>Unknown name %s.</source>
        <translation>Okänt namn %s.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="22"/>
        <source>%s needs its argument in brackets.</source>
        <translation>%s behöver sitt argument inom parentes.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="24"/>
        <source>Unexpected &quot;%s&quot;.</source>
        <translation>Oväntat &quot;%s&quot;.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="26"/>
        <source>The expression is nested too deeply.</source>
        <translation>Uttrycket är för djupt nästlat.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="28"/>
        <source>Write a * between a number and x.</source>
        <translation>Skriv en * mellan ett tal och x.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="30"/>
        <source>The expression is longer than %s characters.</source>
        <translation>Uttrycket är längre än %s tecken.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="44"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="136"/>
        <location filename="../src/core/pages/DataPageSession.cpp" line="76"/>
        <location filename="../src/core/pages/EvaluatorSession.h" line="44"/>
        <source>Invalid entry.</source>
        <translation>Ogiltig inmatning.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetFile.h" line="23"/>
        <source>SLX Data Files (*.set)</source>
        <translation>SLX-datafiler (*.set)</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="19"/>
        <source>No points were found.</source>
        <translation>Inga punkter hittades.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="21"/>
        <source>A data set holds at most %d points.</source>
        <translation>En datamängd rymmer högst %d punkter.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="25"/>
        <source>The text is too large for a data set of at most %d points.</source>
        <translation>Texten är för stor för en datamängd på högst %d punkter.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="30"/>
        <source>Line %d does not hold two numbers.</source>
        <translation>Rad %d innehåller inte två tal.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="11"/>
        <source>No error occurred.</source>
        <translation>Inget fel inträffade.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="12"/>
        <source>An unspecified error occurred.</source>
        <translation>Ett ospecificerat fel inträffade.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="13"/>
        <source>The file could not be located.</source>
        <translation>Filen kunde inte hittas.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="14"/>
        <source>All or part of the path is invalid.</source>
        <translation>Hela eller delar av sökvägen är ogiltiga.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="15"/>
        <source>The permitted number of open files was exceeded.</source>
        <translation>Det tillåtna antalet öppna filer överskreds.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="16"/>
        <source>The file could not be accessed.</source>
        <translation>Filen kunde inte nås.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="17"/>
        <source>There was an attempt to use an invalid file handle.</source>
        <translation>Ett försök gjordes att använda ett ogiltigt filhandtag.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="18"/>
        <source>The current working directory cannot be removed.</source>
        <translation>Den aktuella arbetskatalogen kan inte tas bort.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="19"/>
        <source>There are no more directory entries.</source>
        <translation>Det finns inga fler katalogposter.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="20"/>
        <source>There was an error trying to set the file pointer.</source>
        <translation>Ett fel uppstod när filpekaren skulle flyttas.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="21"/>
        <source>There was a hardware error.</source>
        <translation>Ett maskinvarufel uppstod.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="22"/>
        <source>SHARE.EXE was not loaded, or a shared region was locked.</source>
        <translation>SHARE.EXE var inte inläst, eller så var ett delat område låst.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="23"/>
        <source>There was an attempt to lock a region that was already locked.</source>
        <translation>Ett försök gjordes att låsa ett område som redan var låst.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="24"/>
        <source>The disk is full.</source>
        <translation>Disken är full.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="25"/>
        <source>The end of file was reached.</source>
        <translation>Filens slut nåddes.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="11"/>
        <source>File Open Error</source>
        <translation>Fel vid öppning av fil</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="12"/>
        <source>File Save Error</source>
        <translation>Fel vid sparande av fil</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="9"/>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="59"/>
        <source>No data set found - nothing to save.</source>
        <translation>Ingen datamängd hittades - inget att spara.</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="10"/>
        <source>Wave File Error</source>
        <translation>Fel i WAV-fil</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="11"/>
        <source>Wave Files (*.wav)</source>
        <translation>WAV-filer (*.wav)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="17"/>
        <source>Basic Statistical Information</source>
        <translation>Grundläggande statistik</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="18"/>
        <source>Linear: y = a + bx</source>
        <translation>Linjär: y = a + bx</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="19"/>
        <source>Quadratic: y = ax^2 + bx + c</source>
        <translation>Andragradspolynom: y = ax^2 + bx + c</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="20"/>
        <source>Cubic: y = ax^3 + bx^2 + cx + d</source>
        <translation>Tredjegradspolynom: y = ax^3 + bx^2 + cx + d</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="21"/>
        <source>Quartic: y = ax^4 + bx^3 + cx^2 + dx + e</source>
        <translation>Fjärdegradspolynom: y = ax^4 + bx^3 + cx^2 + dx + e</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="22"/>
        <source>Exponential: y = a b^x</source>
        <translation>Exponentiell: y = a b^x</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="23"/>
        <source>Logarithmic: y = a + b*ln(x)</source>
        <translation>Logaritmisk: y = a + b*ln(x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="24"/>
        <source>Power: y = a x^b</source>
        <translation>Potens: y = a x^b</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="25"/>
        <source>Hyperbolic: y = a + b/x</source>
        <translation>Hyperbolisk: y = a + b/x</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="26"/>
        <source>Rational: y = a / (b + x)</source>
        <translation>Rationell: y = a / (b + x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="27"/>
        <source>Rational: y = ax / (b + x)</source>
        <translation>Rationell: y = ax / (b + x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="28"/>
        <source>Logistic: y = c / (1 + a*exp(-b*x))</source>
        <translation>Logistisk: y = c / (1 + a*exp(-b*x))</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="29"/>
        <source>Sinusoidal: y = a sin(bx+c) + d</source>
        <translation>Sinusformad: y = a sin(bx+c) + d</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitText.cpp" line="19"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points:</source>
        <translation>Antal punkter:</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="146"/>
        <source>Start must be below finish.</source>
        <translation>Start måste vara mindre än Slut.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="150"/>
        <source>At least 2 points are needed.</source>
        <translation>Minst 2 punkter behövs.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="154"/>
        <source>At most %d points can be sampled.</source>
        <translation>Högst %d punkter kan beräknas.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="167"/>
        <source>Point allocation error.</source>
        <translation>Fel vid minnestilldelning för punkterna.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="180"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="196"/>
        <source>Range error: Check plot settings.</source>
        <translation>Områdesfel: Kontrollera inställningarna för grafritning.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="27"/>
        <source>These points cannot be fitted by this model.</source>
        <translation>De här punkterna kan inte anpassas med den här modellen.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="37"/>
        <source>Regression analysis:</source>
        <translation>Regressionsanalys:</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="56"/>
        <source>All x values are equal: no line can be fitted.</source>
        <translation>Alla x-värden är lika: ingen linje kan anpassas.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="79"/>
        <source>undefined</source>
        <translation>odefinierad</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="91"/>
        <source>Not enough points for fit.</source>
        <translation>För få punkter för anpassningen.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="96"/>
        <source>Invalid data set for polynomial fit.</source>
        <translation>Ogiltig datamängd för polynomanpassning.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="168"/>
        <source>Invalid data set.  Y values must be &gt; 0.</source>
        <translation>Ogiltig datamängd.  Y-värdena måste vara större än 0.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="179"/>
        <source>Invalid data set.  X values must be &gt; 0.</source>
        <translation>Ogiltig datamängd.  X-värdena måste vara större än 0.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="188"/>
        <source>Invalid data set.  X and Y values must be &gt; 0.</source>
        <translation>Ogiltig datamängd.  X- och Y-värdena måste vara större än 0.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="199"/>
        <location filename="../src/core/math/RegressionFit.cpp" line="220"/>
        <source>Invalid data set.  X values cannot = 0.</source>
        <translation>Ogiltig datamängd.  X-värdena får inte vara 0.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="235"/>
        <source>Invalid data set for logistic fit.</source>
        <translation>Ogiltig datamängd för logistisk anpassning.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="248"/>
        <source>Invalid data set for sinusoidal fit.</source>
        <translation>Ogiltig datamängd för sinusanpassning.</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="47"/>
        <source>Sum of x values:</source>
        <translation>Summa av x-värdena:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="48"/>
        <source>Mean value of x:</source>
        <translation>Medelvärde av x:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="49"/>
        <source>Sample standard deviation of x:</source>
        <translation>Standardavvikelse för x, stickprov:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="50"/>
        <source>Population standard deviation of x:</source>
        <translation>Standardavvikelse för x, population:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="52"/>
        <source>Sum of y values:</source>
        <translation>Summa av y-värdena:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="53"/>
        <source>Mean value of y:</source>
        <translation>Medelvärde av y:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="54"/>
        <source>Sample standard deviation of y:</source>
        <translation>Standardavvikelse för y, stickprov:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="55"/>
        <source>Population standard deviation of y:</source>
        <translation>Standardavvikelse för y, population:</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 1</source>
        <translation>Datamängd 1</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 2</source>
        <translation>Datamängd 2</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="102"/>
        <source>%s holds the fitted curve: %d points.</source>
        <translation>%s innehåller den anpassade kurvan: %d punkter.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="103"/>
        <source>%s is ready: %d points.</source>
        <translation>%s är klar: %d punkter.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="148"/>
        <source>The clipboard does not hold a table of points.</source>
        <translation>Urklipp innehåller ingen tabell med punkter.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="158"/>
        <source>%s: %d points pasted. Ctrl+Z brings back the previous set.</source>
        <translation>%s: %d punkter inklistrade. Ctrl+Z tar tillbaka den tidigare datamängden.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="172"/>
        <source>%s: %d points read from %s.</source>
        <translation>%s: %d punkter lästa från %s.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="188"/>
        <source>Nothing to undo.</source>
        <translation>Inget att ångra.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="198"/>
        <source>%s is back as it was: %d points.</source>
        <translation>%s är tillbaka som den var: %d punkter.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="54"/>
        <source>user</source>
        <translation>egen inmatning</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="55"/>
        <source>clear</source>
        <translation>tom</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="56"/>
        <source>file: </source>
        <translation>fil: </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="42"/>
        <source>Expression : </source>
        <translation>Uttryck : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="43"/>
        <source>Result : </source>
        <translation>Resultat : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="45"/>
        <source>A variable refers to itself.</source>
        <translation>En variabel refererar till sig själv.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="41"/>
        <source>Matrix Expression:</source>
        <translation>Matrisuttryck:</translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="42"/>
        <source>Error: Invalid matrix expression.</source>
        <translation>Fel: Ogiltigt matrisuttryck.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/NumberEntry.cpp" line="52"/>
        <source>%s must be a number.</source>
        <translation>%s måste vara ett tal.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="35"/>
        <source>Finish</source>
        <translation>Slut</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points</source>
        <translation>Antal punkter</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min</source>
        <translation>X min</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max</source>
        <translation>X max</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min</source>
        <translation>Y min</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="15"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max</source>
        <translation>Y max</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="27"/>
        <source>Invalid function domain. Start must be less than Finish.</source>
        <translation>Ogiltig definitionsmängd. Start måste vara mindre än Slut.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="29"/>
        <source>Invalid graph X range. X min must be less than X max.</source>
        <translation>Ogiltigt x-område för grafen. X min måste vara mindre än X max.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="31"/>
        <source>Invalid graph Y range. Y min must be less than Y max.</source>
        <translation>Ogiltigt y-område för grafen. Y min måste vara mindre än Y max.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="76"/>
        <source>The number of points must be from %d to %d.</source>
        <translation>Antalet punkter måste vara från %d till %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="59"/>
        <source>The width must be from %s to %s inches, the page&apos;s width.</source>
        <translation>Bredden måste vara från %s till %s tum, sidans bredd.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="64"/>
        <source>The height must be from %s to %s inches, the page&apos;s height.</source>
        <translation>Höjden måste vara från %s till %s tum, sidans höjd.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="70"/>
        <source>The number of copies must be from %d to %d.</source>
        <translation>Antalet kopior måste vara från %d till %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="76"/>
        <source>%.1f x %.1f inches</source>
        <translation>%.1f x %.1f tum</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="83"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="60"/>
        <source>y-axis times %s</source>
        <translation>y-axeln gånger %s</translation>
    </message>
    <message>
        <location filename="../src/core/pages/SpeechPageForm.cpp" line="27"/>
        <source>The number of decimal places must be from %d to %d.</source>
        <translation>Antalet decimaler måste vara från %d till %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="32"/>
        <source>The number of tick marks must be from %d to %d.</source>
        <translation>Antalet skalstreck måste vara från %d till %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="36"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="78"/>
        <source>Y Threshold Level</source>
        <translation>Y-tröskelnivå</translation>
    </message>
    <message>
        <location filename="../src/core/settings/FirstStart.h" line="17"/>
        <source>Self-voicing is on; Control+Q switches it off and on again.</source>
        <translation>Självröstningen är på; Kontroll+Q stänger av den och sätter på den igen.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="18"/>
        <source>The data set is empty.</source>
        <translation>Datamängden är tom.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>Last point.</source>
        <translation>Sista punkten.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>First point.</source>
        <translation>Första punkten.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further maximum.</source>
        <translation>Inget ytterligare maximum.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further minimum.</source>
        <translation>Inget ytterligare minimum.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="124"/>
        <source>No further crossing of the x-axis.</source>
        <translation>Ingen ytterligare skärning med x-axeln.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="127"/>
        <source>No earlier crossing of the x-axis.</source>
        <translation>Ingen tidigare skärning med x-axeln.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="134"/>
        <source>Data set 2 is empty.</source>
        <translation>Datamängd 2 är tom.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="135"/>
        <source>Data set 1 is empty.</source>
        <translation>Datamängd 1 är tom.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="142"/>
        <source>No further crossing of the two data sets.</source>
        <translation>Ingen ytterligare skärning mellan de två datamängderna.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/PlayTimeLimit.cpp" line="13"/>
        <source>The play time must be from %d to %d seconds.</source>
        <translation>Speltiden måste vara från %d till %d sekunder.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="12"/>
        <source>hexadecimal.</source>
        <translation>hexadecimal.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="12"/>
        <source>decimal.</source>
        <translation>decimal.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="13"/>
        <source>octal.</source>
        <translation>oktal.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="13"/>
        <source>binary.</source>
        <translation>binär.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>degrees.</source>
        <translation>grader.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>radians.</source>
        <translation>radianer.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="15"/>
        <source>grad.</source>
        <translation>gon.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="9"/>
        <source>Display. </source>
        <translation>Teckenfönster. </translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="10"/>
        <source>inverse</source>
        <translation>invers</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="11"/>
        <source>hyperbolic</source>
        <translation>hyperbolisk</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="12"/>
        <source>right shift</source>
        <translation>högerskift</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="14"/>
        <source>Hyperbolic check box: checked.</source>
        <translation>Kryssrutan Hyperbolisk: markerad.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="15"/>
        <source>Hyperbolic check box: unchecked.</source>
        <translation>Kryssrutan Hyperbolisk: inte markerad.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="16"/>
        <source>Inverse check box: checked.</source>
        <translation>Kryssrutan Invers: markerad.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="17"/>
        <source>Inverse check box: unchecked.</source>
        <translation>Kryssrutan Invers: inte markerad.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="23"/>
        <source>backspace</source>
        <translation>backsteg</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="41"/>
        <source>left shift</source>
        <translation>vänsterskift</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="45"/>
        <source>e to the x</source>
        <translation>e upphöjt till x</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="50"/>
        <source>x to the power y</source>
        <translation>x upphöjt till y</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="51"/>
        <source>square root</source>
        <translation>kvadratrot</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="52"/>
        <source>one over x</source>
        <translation>ett delat med x</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="53"/>
        <source>n factorial</source>
        <translation>n fakultet</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="57"/>
        <source>plus minus</source>
        <translation>plus minus</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="59"/>
        <source>memory store</source>
        <translation>spara i minnet</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="65"/>
        <source>memory plus</source>
        <translation>minne plus</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="70"/>
        <source>pie</source>
        <translation>pi</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="71"/>
        <source>memory clear</source>
        <translation>töm minnet</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="73"/>
        <source>times</source>
        <translation>gånger</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="77"/>
        <source>memory recall</source>
        <translation>hämta från minnet</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="47"/>
        <source>x = %1, y = %2</source>
        <translation>x är %1, y är %2</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="52"/>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="67"/>
        <source>times ten to the</source>
        <translation>gånger tio upphöjt till</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="58"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="186"/>
        <location filename="../src/ui/pages/CSettingsPage.cpp" line="41"/>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="59"/>
        <source>Infinity</source>
        <translation>Oändligheten</translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> minus </source>
        <translation> minus </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> plus </source>
        <translation> plus </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> times </source>
        <translation> gånger </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> divide </source>
        <translation> delat med </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> begin matrix </source>
        <translation> början på matris </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> end matrix </source>
        <translation> slut på matris </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> column </source>
        <translation> kolumn </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> row </source>
        <translation> rad </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> to the power of </source>
        <translation> upphöjt till </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> open paren </source>
        <translation> vänster parentes </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> close paren </source>
        <translation> höger parentes </translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak everything</source>
        <translation>Säg allt</translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak only what the screen reader cannot</source>
        <translation>Säg bara det som skärmläsaren inte kan</translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Automatic</source>
        <translation>Automatiskt</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="18"/>
        <source>%1 (%2 to %3)</source>
        <translation>%1 (%2 till %3)</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="166"/>
        <source>Voice %1, rate %2, pitch %3, volume %4.</source>
        <translation>Röst %1, hastighet %2, tonhöjd %3, volym %4.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="176"/>
        <source>%1 pronounces words by the rules of voice %2; it has no user lexicon.</source>
        <translation>%1 uttalar orden efter reglerna för rösten %2; den har ingen egen uttalslista.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="10"/>
        <source>Self-voicing activated.</source>
        <translation>Självröstning aktiverad.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="12"/>
        <source>Self-voicing deactivated.</source>
        <translation>Självröstning avaktiverad.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="39"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="43"/>
        <source>Licence: </source>
        <translation>Licens: </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="53"/>
        <source>Libraries used: </source>
        <translation>Använda bibliotek: </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="58"/>
        <source>About Sonalyx</source>
        <translation>Om Sonalyx</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="66"/>
        <location filename="../src/ui/app/ProductInfo.h" line="17"/>
        <source>Sonalyx</source>
        <translation>Sonalyx</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="70"/>
        <source>with Sonitrace Technology</source>
        <translation>med Sonitrace-teknik</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="73"/>
        <source>The Sonalyx is a scientific graphing </source>
        <translation>Sonalyx är en vetenskaplig grafritande </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="74"/>
        <source>calculator.  It provides standard functions for computation and two </source>
        <translation>kalkylator.  Den har standardfunktioner för beräkningar och ritar </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="75"/>
        <source>dimensional graphing of mathematical expressions.  The Program is </source>
        <translation>tvådimensionella grafer av matematiska uttryck.  Programmet är </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="76"/>
        <source>entirely self-voicing and provides auditory response for program navigation.</source>
        <translation>helt självröstande och ger talad återkoppling när du navigerar i programmet.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="81"/>
        <source>Send comments and suggestions to:</source>
        <translation>Skicka kommentarer och förslag till:</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="91"/>
        <source>This program supplied as is.  No implied or </source>
        <translation>Programmet levereras i befintligt skick.  Inga uttryckliga eller </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="92"/>
        <source>expressed warranty exists for the performance </source>
        <translation>underförstådda garantier ges för prestanda </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="93"/>
        <source>and function of this software.</source>
        <translation>och funktion hos denna programvara.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="96"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="78"/>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="44"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="23"/>
        <source>button</source>
        <translation>knapp</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="25"/>
        <source>check box</source>
        <translation>kryssruta</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="27"/>
        <source>radio button</source>
        <translation>alternativknapp</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="29"/>
        <source>edit</source>
        <translation>redigeringsfält</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="31"/>
        <source>combo box</source>
        <translation>kombinationsruta</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="33"/>
        <source>list</source>
        <translation>lista</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="35"/>
        <source>list item</source>
        <translation>listobjekt</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="37"/>
        <source>tree</source>
        <translation>träd</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="39"/>
        <source>tree item</source>
        <translation>trädobjekt</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="41"/>
        <source>table</source>
        <translation>tabell</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="43"/>
        <source>cell</source>
        <translation>cell</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="45"/>
        <source>spin box</source>
        <translation>rotationsruta</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="47"/>
        <source>slider</source>
        <translation>skjutreglage</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="49"/>
        <source>text</source>
        <translation>text</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="51"/>
        <source>link</source>
        <translation>länk</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="53"/>
        <source>tab</source>
        <translation>flik</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="55"/>
        <source>menu item</source>
        <translation>menyalternativ</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>checked</source>
        <translation>markerad</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>not checked</source>
        <translation>inte markerad</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="401"/>
        <source>&amp;Hide Graph</source>
        <translation>&amp;Dölj graf</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="402"/>
        <source>&amp;Show Graph</source>
        <translation>&amp;Visa graf</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>Print Error</source>
        <translation>Utskriftsfel</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>No data set found - nothing to print.</source>
        <translation>Ingen datamängd hittades - inget att skriva ut.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: enabled.</source>
        <translation>Automatisk återgång: på.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: disabled.</source>
        <translation>Automatisk återgång: av.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="58"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="110"/>
        <source>&amp;File</source>
        <translation>&amp;Arkiv</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="59"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="40"/>
        <source>E&amp;xit</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="128"/>
        <source>. Grayed.</source>
        <translation>. Nedtonad.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="32"/>
        <source>&amp;Open Data Set ...</source>
        <translation>&amp;Öppna datamängd ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="33"/>
        <source>&amp;Save Data Set ...</source>
        <translation>&amp;Spara datamängd ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="34"/>
        <source>&amp;Paste Data From Clipboard</source>
        <translation>&amp;Klistra in data från Urklipp</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="35"/>
        <source>&amp;Copy Data To Clipboard</source>
        <translation>Ko&amp;piera data till Urklipp</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="36"/>
        <source>&amp;Load Constants ...</source>
        <translation>&amp;Läs in konstanter ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="37"/>
        <source>Sa&amp;ve Constants ...</source>
        <translation>Spara ko&amp;nstanter ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="38"/>
        <source>Res&amp;tore Default Parameters</source>
        <translation>Återställ s&amp;tandardvärden</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="39"/>
        <source>P&amp;rint GraphTABCtrl+P</source>
        <translation>Sk&amp;riv ut grafTABCtrl+P</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="41"/>
        <source>&amp;Calculator</source>
        <translation>&amp;Kalkylator</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="42"/>
        <source>&amp;Evaluator</source>
        <translation>&amp;Uttrycksräknare</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="43"/>
        <source>Data Set &amp;1</source>
        <translation>Datamängd &amp;1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="44"/>
        <source>Data Set &amp;2</source>
        <translation>Datamängd &amp;2</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="45"/>
        <source>&amp;Matrices</source>
        <translation>&amp;Matriser</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="46"/>
        <source>&amp;Source</source>
        <translation>&amp;Källa</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="47"/>
        <source>&amp;Calculus</source>
        <translation>&amp;Analys</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="48"/>
        <source>&amp;Axes</source>
        <translation>A&amp;xlar</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="49"/>
        <source>&amp;Frame</source>
        <translation>&amp;Ram</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="50"/>
        <source>&amp;Range</source>
        <translation>&amp;Område</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="51"/>
        <source>Speec&amp;h</source>
        <translation>&amp;Tal</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="52"/>
        <source>&amp;Volume</source>
        <translation>&amp;Volym</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="53"/>
        <source>&amp;Play Time</source>
        <translation>&amp;Speltid</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="54"/>
        <source>&amp;Frequency Range</source>
        <translation>&amp;Frekvensområde</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="55"/>
        <source>&amp;Wave Type</source>
        <translation>&amp;Ljudtyp</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="56"/>
        <source>&amp;AutoReturn</source>
        <translation>&amp;Automatisk återgång</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="57"/>
        <source>Self-&amp;VoicingTABCtrl+Q, Alt+S</source>
        <translation>&amp;SjälvröstningTABCtrl+Q, Alt+S</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="58"/>
        <source>&amp;LargerTABF8</source>
        <translation>Stö&amp;rreTABF8</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="59"/>
        <source>&amp;SmallerTABF7</source>
        <translation>Mi&amp;ndreTABF7</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="60"/>
        <source>&amp;Evaluate Expression 1TABF4</source>
        <translation>&amp;Beräkna uttryck 1TABF4</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="61"/>
        <source>&amp;Play Data SetTABF5</source>
        <translation>&amp;Spela datamängdTABF5</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="62"/>
        <source>Play Data and &amp;TicksTABF6</source>
        <translation>Spela data och s&amp;kalstreckTABF6</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="63"/>
        <source>&amp;Write Wave File</source>
        <translation>Skriv &amp;WAV-fil</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="64"/>
        <source>Find &amp;IntersectionTABAlt+I</source>
        <translation>H&amp;itta skärningspunktTABAlt+I</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="65"/>
        <source>Find &amp;ZerosTABAlt+0</source>
        <translation>Hitta &amp;nollställenTABAlt+0</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="66"/>
        <source>&amp;Show GraphTABF3</source>
        <translation>&amp;Visa grafTABF3</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="68"/>
        <source>&amp;User ManualTABF1</source>
        <translation>&amp;AnvändarhandbokTABF1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="69"/>
        <source>&amp;Calculator Hotkeys</source>
        <translation>Snabbtangenter för &amp;kalkylatorn</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="70"/>
        <source>&amp;Graphing Hotkeys</source>
        <translation>Snabbtangenter för &amp;grafer</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="71"/>
        <source>&amp;Navigational Hotkeys</source>
        <translation>Snabbtangenter för &amp;navigering</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="79"/>
        <source>&amp;Online Help</source>
        <translation>Hjälp på &amp;webben</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="80"/>
        <source>&amp;About the Sonalyx ...</source>
        <translation>&amp;Om Sonalyx ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="124"/>
        <source>&amp;Options</source>
        <translation>&amp;Inställningar</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="130"/>
        <source>&amp;Plot</source>
        <translation>&amp;Grafritning</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="138"/>
        <source>&amp;Wave</source>
        <translation>&amp;Ljud</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="151"/>
        <source>&amp;Graph</source>
        <translation>&amp;Graf</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="161"/>
        <source>&amp;Help</source>
        <translation>&amp;Hjälp</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="38"/>
        <source>Open Data Set</source>
        <translation>Öppna datamängd</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="63"/>
        <source>Save Data Set</source>
        <translation>Spara datamängd</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="72"/>
        <source>Saved %1 points as %2.</source>
        <translation>Sparade %1 punkter som %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="82"/>
        <source>%1 points copied to the clipboard.</source>
        <translation>%1 punkter kopierade till Urklipp.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="26"/>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="28"/>
        <source>Left</source>
        <translation>Vänsterpil</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="30"/>
        <source>Right</source>
        <translation>Högerpil</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="32"/>
        <source>Up</source>
        <translation>Uppåtpil</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="34"/>
        <source>Down</source>
        <translation>Nedåtpil</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="36"/>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="38"/>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="40"/>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="42"/>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="44"/>
        <source>Tab</source>
        <translation>Tabb</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="46"/>
        <source>Space</source>
        <translation>Blanksteg</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="60"/>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="61"/>
        <location filename="../src/ui/app/KeyList.cpp" line="219"/>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="62"/>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Shift</source>
        <translation>Skift</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Enter</source>
        <translation>Retur</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Backspace</source>
        <translation>Backsteg</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="130"/>
        <source>Stops the sound of the graph.</source>
        <translation>Stoppar grafens ljud.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="132"/>
        <source>Steps to the next point of the graph and says it.</source>
        <translation>Går till grafens nästa punkt och läser upp den.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="134"/>
        <source>Steps to the previous point of the graph and says it.</source>
        <translation>Går till grafens föregående punkt och läser upp den.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="136"/>
        <source>Steps to the next maximum of the graph.</source>
        <translation>Går till grafens nästa maximum.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="138"/>
        <source>Steps to the next minimum of the graph.</source>
        <translation>Går till grafens nästa minimum.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="140"/>
        <source>Goes to the first point of the graph.</source>
        <translation>Går till grafens första punkt.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="142"/>
        <source>Goes to the last point of the graph.</source>
        <translation>Går till grafens sista punkt.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="144"/>
        <source>On the Matrix page: copies the matrix as a picture and as text.</source>
        <translation>På sidan Matris: kopierar matrisen som bild och som text.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="146"/>
        <source>Steps back to the previous place where the graph crosses the x-axis.</source>
        <translation>Går tillbaka till föregående ställe där grafen skär x-axeln.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="156"/>
        <source>Says the display.</source>
        <translation>Läser upp teckenfönstret.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="158"/>
        <source>Says the memory.</source>
        <translation>Läser upp minnet.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="160"/>
        <source>Ticks or clears Hyperbolic.</source>
        <translation>Markerar eller avmarkerar Hyperbolisk.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="162"/>
        <source>Ticks or clears Inverse.</source>
        <translation>Markerar eller avmarkerar Invers.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="164"/>
        <source>Right shift.</source>
        <translation>Högerskift.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="166"/>
        <source>Recalls the memory.</source>
        <translation>Hämtar värdet från minnet.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="174"/>
        <source>Goes to the next tab of the control panel.</source>
        <translation>Går till kontrollpanelens nästa flik.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="175"/>
        <source>Goes to the previous tab of the control panel.</source>
        <translation>Går till kontrollpanelens föregående flik.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="176"/>
        <source>Goes to the next control of the page.</source>
        <translation>Går till sidans nästa kontroll.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="177"/>
        <source>Goes to the previous control of the page.</source>
        <translation>Går till sidans föregående kontroll.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="178"/>
        <source>On the tabs: goes to the tab beside.</source>
        <translation>På flikarna: går till fliken bredvid.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="180"/>
        <source>In a group of choices: chooses the one above or below; in a list: the item above or below.</source>
        <translation>I en grupp av val: väljer det ovanför eller nedanför; i en lista: objektet ovanför eller nedanför.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="181"/>
        <source>Presses the button, or ticks or clears the box, that has the focus.</source>
        <translation>Trycker på knappen, eller markerar eller avmarkerar rutan, som har fokus.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="183"/>
        <source>On a slider: moves it by one, by a page, or to an end.</source>
        <translation>På ett skjutreglage: flyttar det ett steg, en sida eller till ena änden.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="184"/>
        <source>Opens the menu bar.</source>
        <translation>Öppnar menyraden.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="185"/>
        <source>Closes a menu or a dialog.</source>
        <translation>Stänger en meny eller en dialogruta.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="237"/>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source> or </source>
        <translation> eller </translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="260"/>
        <source>On the Evaluator and Matrix pages: evaluates the expression, or stores name = expression.</source>
        <translation>På sidorna Uttrycksräknare och Matris: beräknar uttrycket, eller sparar namn = uttryck.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="261"/>
        <source>On the Evaluator and Matrix pages: brings earlier entries back.</source>
        <translation>På sidorna Uttrycksräknare och Matris: hämtar tillbaka tidigare inmatningar.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="262"/>
        <source>On the Data pages, in f(x): fills the table with f(x) over the function&apos;s domain.</source>
        <translation>På datasidorna, i f(x): fyller tabellen med f(x) över funktionens definitionsmängd.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="263"/>
        <source>On the Data pages: undoes a paste or a load of the data set.</source>
        <translation>På datasidorna: ångrar en inklistring eller inläsning av datamängden.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="288"/>
        <source>Moving around the program</source>
        <translation>Förflyttning i programmet</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="289"/>
        <source>Hot keys</source>
        <translation>Snabbtangenter</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="290"/>
        <source>The graph and its sound</source>
        <translation>Grafen och dess ljud</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="306"/>
        <source>The menus</source>
        <translation>Menyerna</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="307"/>
        <source>The Calculator page</source>
        <translation>Sidan Kalkylator</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="308"/>
        <source>The Evaluator, Matrix and Data pages</source>
        <translation>Sidorna Uttrycksräknare, Matris och Data</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="313"/>
        <location filename="../src/ui/app/KeyList.cpp" line="323"/>
        <source>Sonalyx keys</source>
        <translation>Tangenter i Sonalyx</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="314"/>
        <source>Navigational hotkeys</source>
        <translation>Snabbtangenter för navigering</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="315"/>
        <source>Graphing hotkeys</source>
        <translation>Snabbtangenter för grafer</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="316"/>
        <source>Calculator hotkeys</source>
        <translation>Snabbtangenter för kalkylatorn</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="336"/>
        <source>This list is made from the program&apos;s own tables of keys.</source>
        <translation>Den här listan skapas från programmets egna tangenttabeller.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="337"/>
        <source>Back to the manual</source>
        <translation>Tillbaka till handboken</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>Keys</source>
        <translation>Tangenter</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>What they do</source>
        <translation>Vad de gör</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="21"/>
        <location filename="../src/ui/app/ProductInfo.h" line="31"/>
        <source>GNU General Public License, version 3 or later</source>
        <translation>GNU General Public License, version 3 eller senare</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="30"/>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, version 3</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="32"/>
        <location filename="../src/ui/app/ProductInfo.h" line="34"/>
        <location filename="../src/ui/app/ProductInfo.h" line="35"/>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, version 2.1 eller senare</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="33"/>
        <source>zlib License</source>
        <translation>zlib-licensen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="36"/>
        <source>Mozilla Public License, version 2.0</source>
        <translation>Mozilla Public License, version 2.0</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="37"/>
        <source>GNU General Public License, version 2</source>
        <translation>GNU General Public License, version 2</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="44"/>
        <source>Button. </source>
        <translation>Knapp. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="47"/>
        <source>Check box. </source>
        <translation>Kryssruta. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="50"/>
        <source>Radio button. </source>
        <translation>Alternativknapp. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="57"/>
        <source> Checked.</source>
        <translation> Markerad.</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <source> Unchecked.</source>
        <translation> Inte markerad.</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSEdit.cpp" line="42"/>
        <source>Backspace. </source>
        <translation>Backsteg. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSListBox.cpp" line="22"/>
        <source>Blank line</source>
        <translation>Tom rad</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSStatic.cpp" line="21"/>
        <source>Label. </source>
        <translation>Etikett. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSTabCtrl.cpp" line="18"/>
        <source>screen.</source>
        <translation>flik.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="78"/>
        <source>SLX - Data Plot Print Setup</source>
        <translation>SLX - Utskriftsinställningar för graf</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="84"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <source>Printer</source>
        <translation>Skrivare</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="94"/>
        <source>Printer:</source>
        <translation>Skrivare:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="88"/>
        <source>No printer installed</source>
        <translation>Ingen skrivare installerad</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="89"/>
        <source>With no printer, Print saves the graph as a PDF file.</source>
        <translation>Utan skrivare sparar knappen Skriv ut grafen som en PDF-fil.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="95"/>
        <source>Print to file</source>
        <translation>Skriv till fil</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="96"/>
        <source>Saves the page as a PDF file instead of printing it.</source>
        <translation>Sparar sidan som en PDF-fil i stället för att skriva ut den.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="103"/>
        <source>File name:</source>
        <translation>Filnamn:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="100"/>
        <source>The PDF file the page is saved in.</source>
        <translation>PDF-filen som sidan sparas i.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="115"/>
        <source>Font:</source>
        <translation>Teckensnitt:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <source>Font</source>
        <translation>Teckensnitt</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="113"/>
        <source>Font size:</source>
        <translation>Teckenstorlek:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <source>Font size</source>
        <translation>Teckenstorlek</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="117"/>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="131"/>
        <source>Width:</source>
        <translation>Bredd:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="120"/>
        <source>The graph&apos;s width on paper, in inches.</source>
        <translation>Grafens bredd på papperet, i tum.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="132"/>
        <source>Height:</source>
        <translation>Höjd:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="123"/>
        <source>The graph&apos;s height on paper, in inches.</source>
        <translation>Grafens höjd på papperet, i tum.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="125"/>
        <source>Portrait</source>
        <translation>Stående</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="126"/>
        <source>Landscape</source>
        <translation>Liggande</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="136"/>
        <source>Paper size:</source>
        <translation>Pappersstorlek:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <source>Paper size</source>
        <translation>Pappersstorlek</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="139"/>
        <source>Number of copies:</source>
        <translation>Antal kopior:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <source>Number of copies</source>
        <translation>Antal kopior</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="143"/>
        <source>Title:</source>
        <translation>Rubrik:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <source>Title</source>
        <translation>Rubrik</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="141"/>
        <source>Printed above the graph.</source>
        <translation>Skrivs ut ovanför grafen.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="145"/>
        <source>Data Style</source>
        <translation>Datastil</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw Data Points</source>
        <translation>Rita datapunkter</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw line through points</source>
        <translation>Rita linje genom punkterna</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="148"/>
        <source>Draw both line and data points</source>
        <translation>Rita både linje och datapunkter</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="156"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="122"/>
        <source>Axes</source>
        <translation>Axlar</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="158"/>
        <source>Show X-Axis</source>
        <translation>Visa x-axeln</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="159"/>
        <source>Show Y-Axis</source>
        <translation>Visa y-axeln</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="164"/>
        <source>Axis Labels</source>
        <translation>Axeletiketter</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="166"/>
        <source>X Labels</source>
        <translation>X-etiketter</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="167"/>
        <source>Y Labels</source>
        <translation>Y-etiketter</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="172"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="58"/>
        <source>Tick Marks</source>
        <translation>Skalstreck</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>No Tick Marks</source>
        <translation>Inga skalstreck</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>Grid Lines</source>
        <translation>Rutnät</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="182"/>
        <source>Preview</source>
        <translation>Förhandsgranskning</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="190"/>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="191"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="79"/>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="45"/>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="240"/>
        <source>No printer is installed: the graph can only be saved as a PDF file.</source>
        <translation>Ingen skrivare är installerad: grafen kan bara sparas som en PDF-fil.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="380"/>
        <source>Type the name of the PDF file to save the graph in.</source>
        <translation>Skriv namnet på PDF-filen som grafen ska sparas i.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="400"/>
        <source>The graph could not be printed on %s.</source>
        <translation>Grafen kunde inte skrivas ut på %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="403"/>
        <source>The graph is printed on %s.</source>
        <translation>Grafen skrivs ut på %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="404"/>
        <source>The graph is saved in %s.</source>
        <translation>Grafen är sparad i %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="426"/>
        <source>No printer is installed: Print saves the graph as a PDF file.</source>
        <translation>Ingen skrivare är installerad: knappen Skriv ut sparar grafen som en PDF-fil.</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="74"/>
        <source>Write Wave File</source>
        <translation>Skriv WAV-fil</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="94"/>
        <source>Wave file written: %s.</source>
        <translation>WAV-fil skriven: %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="32"/>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="84"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="26"/>
        <source>Graph</source>
        <translation>Graf</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>x:</source>
        <translation>x:</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>y:</source>
        <translation>y:</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>Point:</source>
        <translation>Punkt:</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="60"/>
        <source>Data Set 1</source>
        <translation>Datamängd 1</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="61"/>
        <source>Data Set 2</source>
        <translation>Datamängd 2</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <source>Sum</source>
        <translation>Summa</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="53"/>
        <source>Difference</source>
        <translation>Differens</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="77"/>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="62"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="64"/>
        <source>f(x) = </source>
        <translation>f(x) = </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="74"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="221"/>
        <source>Message</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="78"/>
        <source>Coordinates</source>
        <translation>Koordinater</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="80"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="82"/>
        <source>Rectangle</source>
        <translation>Rätvinkliga</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="81"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="83"/>
        <source>Polar</source>
        <translation>Polära</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 1 table</source>
        <translation>Tabell för datamängd 1</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 2 table</source>
        <translation>Tabell för datamängd 2</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="103"/>
        <source>Statistical Description of Data Set</source>
        <translation>Statistisk beskrivning av datamängden</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="106"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="108"/>
        <source>Mode:</source>
        <translation>Läge:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="118"/>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="46"/>
        <source>Results</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="120"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="121"/>
        <source>Plot Fitted Curve</source>
        <translation>Rita anpassad kurva</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="130"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Evaluate Statistics</source>
        <translation>Beräkna statistik</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="135"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="136"/>
        <source>Plot Data Set 2</source>
        <translation>Rita datamängd 2</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="250"/>
        <source>Empty Data Set</source>
        <translation>Tom datamängd</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="251"/>
        <source>No data plotted -- nothing to calculate.</source>
        <translation>Ingen data ritad - inget att beräkna.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Return to Data Table</source>
        <translation>Tillbaka till datatabellen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="273"/>
        <source>Sinusoidal Fit Parameters</source>
        <translation>Parametrar för sinusanpassning</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="274"/>
        <source>Period: </source>
        <translation>Period: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="276"/>
        <source>Set</source>
        <translation>Använd</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="277"/>
        <source>Use Default</source>
        <translation>Använd standard</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="291"/>
        <source>A fit needs at least two points.</source>
        <translation>En anpassning behöver minst två punkter.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="25"/>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="27"/>
        <source>f(x)</source>
        <translation>f(x)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="29"/>
        <source>d(f(x))/dx</source>
        <translation>d(f(x))/dx</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="31"/>
        <source>f(x)dx</source>
        <translation>f(x)dx</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="33"/>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="63"/>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="117"/>
        <source>new point</source>
        <translation>ny punkt</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="64"/>
        <source>blank</source>
        <translation>tom</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="70"/>
        <source>New point.</source>
        <translation>Ny punkt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="71"/>
        <source>Row %1: </source>
        <translation>Rad %1: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataTableView.cpp" line="46"/>
        <source>Empty.</source>
        <translation>Tom.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source>Keyboard: </source>
        <translation>Tangentbord: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="127"/>
        <source>Display</source>
        <translation>Teckenfönster</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="128"/>
        <source>Ctrl+B says the display again, Ctrl+T the memory.</source>
        <translation>Ctrl+B läser upp teckenfönstret igen, Ctrl+T minnet.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="142"/>
        <source>Memory</source>
        <translation>Minne</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="143"/>
        <source>Shows M while the memory holds a value.</source>
        <translation>Visar M när minnet innehåller ett värde.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Dec</source>
        <translation>Dec</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Oct</source>
        <translation>Okt</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Bin</source>
        <translation>Bin</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="153"/>
        <source>Number base</source>
        <translation>Talbas</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="153"/>
        <source>Hexadecimal, decimal, octal or binary</source>
        <translation>Hexadecimal, decimal, oktal eller binär</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Deg</source>
        <translation>Grader</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Rad</source>
        <translation>Radianer</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Grad</source>
        <translation>Gon</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Angle unit</source>
        <translation>Vinkelenhet</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Degrees, radians or grad</source>
        <translation>Grader, radianer eller gon</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="179"/>
        <source>Inv</source>
        <translation>Inv</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="181"/>
        <source>Hyp</source>
        <translation>Hyp</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="320"/>
        <source>Memory is empty.</source>
        <translation>Minnet är tomt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="324"/>
        <source>Memory: </source>
        <translation>Minne: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="30"/>
        <source>Expression</source>
        <translation>Uttryck</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="32"/>
        <source>Enter evaluates it or stores name = expression; Up and Down bring earlier entries back.</source>
        <translation>Retur beräknar uttrycket eller sparar namn lika med uttryck; Uppåtpil och Nedåtpil hämtar tillbaka tidigare inmatningar.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="33"/>
        <source>Expression:</source>
        <translation>Uttryck:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="39"/>
        <source>Result</source>
        <translation>Resultat</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="40"/>
        <source>The result of the last entry.</source>
        <translation>Resultatet av den senaste inmatningen.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="41"/>
        <source>Result:</source>
        <translation>Resultat:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="47"/>
        <source>Every entry with its result, the newest first.</source>
        <translation>Varje inmatning med sitt resultat, den nyaste först.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="37"/>
        <source>Matrix expression</source>
        <translation>Matrisuttryck</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="38"/>
        <source>Enter evaluates it or stores NAME = expression; ANS is the last result; Up and Down bring earlier entries back.</source>
        <translation>Retur beräknar uttrycket eller sparar NAMN lika med uttryck; ANS är det senaste resultatet; Uppåtpil och Nedåtpil hämtar tillbaka tidigare inmatningar.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="89"/>
        <source>Matrix copied to the clipboard.</source>
        <translation>Matrisen har kopierats till Urklipp.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="90"/>
        <source>There is no matrix to copy.</source>
        <translation>Det finns ingen matris att kopiera.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="54"/>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="161"/>
        <source>Matrix display</source>
        <translation>Matrisvisning</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="56"/>
        <source>The last result, typeset; its context menu copies it to the clipboard.</source>
        <translation>Det senaste resultatet, typsatt; dess snabbmeny kopierar det till Urklipp.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="191"/>
        <source>Copy To Clipboard</source>
        <translation>Kopiera till Urklipp</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Where f(x) is first sampled.</source>
        <translation>Där f(x) beräknas först.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="35"/>
        <source>Finish:</source>
        <translation>Slut:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="36"/>
        <source>Where f(x) is last sampled; above Start.</source>
        <translation>Där f(x) beräknas sist; större än Start.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source># Pts:</source>
        <translation>Punkter:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="38"/>
        <source>How many points f(x) is sampled at.</source>
        <translation>I hur många punkter f(x) beräknas.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min:</source>
        <translation>X min:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>The left end of the graph.</source>
        <translation>Grafens vänstra kant.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max:</source>
        <translation>X max:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>The right end of the graph.</source>
        <translation>Grafens högra kant.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min:</source>
        <translation>Y min:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>The bottom of the graph.</source>
        <translation>Grafens nederkant.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max:</source>
        <translation>Y max:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>The top of the graph.</source>
        <translation>Grafens överkant.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="57"/>
        <source>Source</source>
        <translation>Källa</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="62"/>
        <source>Sum (1+2)</source>
        <translation>Summa (1+2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1-2)</source>
        <translation>Differens (1-2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1 minus 2)</source>
        <translation>Differens (1 minus 2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="72"/>
        <source>Calculus Plot</source>
        <translation>Analysgraf</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="74"/>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="74"/>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="75"/>
        <source>Derivative</source>
        <translation>Derivata</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="94"/>
        <source>Function Domain</source>
        <translation>Definitionsmängd</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="99"/>
        <source>Graph Range</source>
        <translation>Grafens område</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="104"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="109"/>
        <source>Auto-Scale</source>
        <translation>Autoskala</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="105"/>
        <source>X Auto-Scale</source>
        <translation>X-autoskala</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="110"/>
        <source>Y Auto-Scale</source>
        <translation>Y-autoskala</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="113"/>
        <source>Mode</source>
        <translation>Läge</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="116"/>
        <source>Points</source>
        <translation>Punkter</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="118"/>
        <source>Line</source>
        <translation>Linje</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="120"/>
        <source>Error Bars</source>
        <translation>Felstaplar</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="125"/>
        <source>Show X-axis</source>
        <translation>Visa x-axeln</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="128"/>
        <source>Show Y-axis</source>
        <translation>Visa y-axeln</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="129"/>
        <source>Display X labels</source>
        <translation>Visa x-etiketter</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="131"/>
        <source>Display Y labels</source>
        <translation>Visa y-etiketter</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="134"/>
        <source>Frame</source>
        <translation>Ram</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>No ticks or grid.</source>
        <translation>Inga skalstreck eller rutnät.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Tick</source>
        <translation>Skalstreck</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Grid</source>
        <translation>Rutnät</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="46"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="161"/>
        <source>Lexicon</source>
        <translation>Lexikon</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="51"/>
        <source>Pronunciations</source>
        <translation>Uttal</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="52"/>
        <source>Each word and how the voice says it.</source>
        <translation>Varje ord och hur rösten säger det.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="53"/>
        <source>Pronunciations:</source>
        <translation>Uttal:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="57"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="63"/>
        <source>Word:</source>
        <translation>Ord:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="58"/>
        <source>The word as the program writes it.</source>
        <translation>Ordet så som programmet skriver det.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="60"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="64"/>
        <source>Say as:</source>
        <translation>Säg som:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="61"/>
        <source>How the voice is to say it.</source>
        <translation>Hur rösten ska säga det.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Puts the word and how to say it in the list.</source>
        <translation>Lägger in ordet och hur det ska sägas i listan.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Takes the chosen word out of the list.</source>
        <translation>Tar bort det valda ordet ur listan.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="112"/>
        <source>Type a word first.</source>
        <translation>Skriv ett ord först.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="121"/>
        <source>Added %1, said as %2.</source>
        <translation>La till %1, sägs som %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="127"/>
        <source>The list is empty.</source>
        <translation>Listan är tom.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="133"/>
        <source>Removed %1.</source>
        <translation>Tog bort %1.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="23"/>
        <source>eSpeak NG</source>
        <translation>eSpeak NG</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="24"/>
        <source>System speech service</source>
        <translation>Systemets taltjänst</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="30"/>
        <source>Speech engine</source>
        <translation>Talmotor</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="32"/>
        <source>Speak with:</source>
        <translation>Tala med:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="46"/>
        <source>No speech engine is running.</source>
        <translation>Ingen talmotor körs.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="47"/>
        <source>Speech engine: %1. Voice: %2.</source>
        <translation>Talmotor: %1. Röst: %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="54"/>
        <source>About TTS. This button tells the name, version and voice of your speech engine.</source>
        <translation>Om talsyntes. Den här knappen säger namn, version och röst för din talmotor.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="56"/>
        <source>General. This button chooses the speech engine: eSpeak NG or the system&apos;s speech service.</source>
        <translation>Allmänt. Den här knappen väljer talmotor: eSpeak NG eller systemets taltjänst.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="57"/>
        <source>Translate. This button only says what it is for: Sonalyx speaks in the language of your desktop, so choose a voice of that language in the list of voices.</source>
        <translation>Översätt. Den här knappen säger bara vad den är till för: Sonalyx talar skrivbordets språk, så välj en röst på det språket i listan med röster.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="61"/>
        <source>Lexicon. This button opens the pronunciation list: words and how the voice says them.</source>
        <translation>Lexikon. Den här knappen öppnar uttalslistan: ord och hur rösten säger dem.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="68"/>
        <source>Numbers</source>
        <translation>Siffror</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="74"/>
        <source>Number of decimal places to voice:</source>
        <translation>Antal decimaler att läsa upp:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <source>Number of decimal places to voice</source>
        <translation>Antal decimaler att läsa upp</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="72"/>
        <source>How many decimal places spoken numbers keep, from 0 to 15.</source>
        <translation>Hur många decimaler upplästa tal behåller, från 0 till 15.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="85"/>
        <source>Voice</source>
        <translation>Röst</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="89"/>
        <source>Voices</source>
        <translation>Röster</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="90"/>
        <source>The voices of the speech engine; the chosen one speaks.</source>
        <translation>Talmotorns röster; den valda talar.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="92"/>
        <source>Voices:</source>
        <translation>Röster:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>Rate</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>How fast the voice speaks.</source>
        <translation>Hur snabbt rösten talar.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>Pitch</source>
        <translation>Tonhöjd</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>How high the voice speaks.</source>
        <translation>Hur ljust eller mörkt rösten talar.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="52"/>
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <source>How loud the voice speaks.</source>
        <translation>Hur starkt rösten talar.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="109"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>percent.</source>
        <translation>procent.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="121"/>
        <source>Self-Voicing</source>
        <translation>Självröstning</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="123"/>
        <source>Sound Effects</source>
        <translation>Ljudeffekter</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="125"/>
        <source>Allow Self-Voicing</source>
        <translation>Tillåt självröstning</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="128"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="135"/>
        <source>Beside a screen reader:</source>
        <translation>Bredvid en skärmläsare:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="129"/>
        <source>What self-voicing says while a screen reader runs: everything, or only what the screen reader cannot know.</source>
        <translation>Vad självröstningen säger medan en skärmläsare körs: allt, eller bara det som skärmläsaren inte kan veta.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: checked.</source>
        <translation>Tillåt ljudeffekter: markerad.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: unchecked.</source>
        <translation>Tillåt ljudeffekter: inte markerad.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="156"/>
        <source>Speech Engine</source>
        <translation>Talmotor</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="158"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="252"/>
        <source>About TTS</source>
        <translation>Om talsyntes</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="159"/>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="160"/>
        <source>Translate</source>
        <translation>Översätt</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="268"/>
        <source>SONALYX_SPEECH chooses the engine of this run; %1 speaks from the next start without it.</source>
        <translation>SONALYX_SPEECH väljer motorn för den här körningen; %1 talar från nästa start utan den.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="270"/>
        <source>%1 speaks now.</source>
        <translation>%1 talar nu.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="273"/>
        <source>%1 cannot start here; the voice stays as it was.</source>
        <translation>%1 kan inte starta här; rösten förblir som den var.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="40"/>
        <source>Play Time (%d sec.)</source>
        <translation>Speltid (%d sek.)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set:</source>
        <translation>Datamängd:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set volume:</source>
        <translation>Datamängdens volym:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="55"/>
        <source>How loud the curve plays.</source>
        <translation>Hur starkt kurvan spelas.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="57"/>
        <source>Tick Marks:</source>
        <translation>Skalstreck:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>Tick volume:</source>
        <translation>Skalstreckens volym:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="63"/>
        <source>How loud the tick marks click.</source>
        <translation>Hur starkt skalstrecken klickar.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="70"/>
        <source># of vertical tick marks:</source>
        <translation>Antal lodräta skalstreck:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <source>Number of vertical tick marks</source>
        <translation>Antal lodräta skalstreck</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="68"/>
        <source>How many tick marks a sweep passes, from 5 to 15.</source>
        <translation>Hur många skalstreck ett svep passerar, från 5 till 15.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="75"/>
        <source>Y Threshold</source>
        <translation>Y-tröskel</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="77"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y Threshold Level:</source>
        <translation>Y-tröskelnivå:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y threshold level</source>
        <translation>Y-tröskelnivå</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="81"/>
        <source>Below this y the tone turns buzzier, so you hear where the curve passes it.</source>
        <translation>Under detta y blir tonen surrigare, så att du hör var kurvan passerar det.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>Play time:</source>
        <translation>Speltid:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>seconds.</source>
        <translation>sekunder.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="90"/>
        <source>How long the whole curve plays.</source>
        <translation>Hur länge hela kurvan spelas.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="109"/>
        <source>Wave Type</source>
        <translation>Ljudtyp</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="111"/>
        <source>Mono output</source>
        <translation>Monoljud</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="112"/>
        <source>Stereo output</source>
        <translation>Stereoljud</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="121"/>
        <source>Frequency Range</source>
        <translation>Frekvensområde</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Frequency minimum</source>
        <translation>Lägsta frekvens</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>hertz.</source>
        <translation>hertz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="124"/>
        <source>The pitch of the lowest y.</source>
        <translation>Tonhöjden för det lägsta y.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Frequency maximum</source>
        <translation>Högsta frekvens</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="127"/>
        <source>The pitch of the highest y.</source>
        <translation>Tonhöjden för det högsta y.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="134"/>
        <source>Auto-speak Coordinates</source>
        <translation>Läs upp koordinater automatiskt</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="136"/>
        <source>Speak X and Y values at each step</source>
        <translation>Läs upp x- och y-värden vid varje steg</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Plot</source>
        <translation>Grafritning</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Wave</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Speech</source>
        <translation>Tal</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Calculator</source>
        <translation>Kalkylator</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 1</source>
        <translation>Data 1</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 2</source>
        <translation>Data 2</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Evaluator</source>
        <translation>Uttrycksräknare</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Matrix</source>
        <translation>Matris</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="60"/>
        <source>Control panel</source>
        <translation>Kontrollpanel</translation>
    </message>
</context>
</TS>
