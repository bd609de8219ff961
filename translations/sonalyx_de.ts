<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
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
        <translation>Division durch null nicht möglich</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="21"/>
        <source>Result is undefined</source>
        <translation>Ergebnis ist nicht definiert</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="22"/>
        <source>Invalid input</source>
        <translation>Ungültige Eingabe</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="23"/>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="14"/>
        <source>The expression is empty.</source>
        <translation>Der Term ist leer.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="16"/>
        <source>The expression ends too early.</source>
        <translation>Der Term endet zu früh.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="18"/>
        <source>Missing closing bracket.</source>
        <translation>Eine schließende Klammer fehlt.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="20"/>
        <source>Unknown name %s.</source>
        <translation>Unbekannter Name %s.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="22"/>
        <source>%s needs its argument in brackets.</source>
        <translation>%s braucht sein Argument in Klammern.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="24"/>
        <source>Unexpected &quot;%s&quot;.</source>
        <translation>Unerwartet: „%s“.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="26"/>
        <source>The expression is nested too deeply.</source>
        <translation>Der Term ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="28"/>
        <source>Write a * between a number and x.</source>
        <translation>Schreiben Sie ein * zwischen eine Zahl und x.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="30"/>
        <source>The expression is longer than %s characters.</source>
        <translation>Der Term ist länger als %s Zeichen.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="44"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="136"/>
        <location filename="../src/core/pages/DataPageSession.cpp" line="76"/>
        <location filename="../src/core/pages/EvaluatorSession.h" line="44"/>
        <source>Invalid entry.</source>
        <translation>Ungültige Eingabe.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetFile.h" line="23"/>
        <source>SLX Data Files (*.set)</source>
        <translation>SLX-Datendateien (*.set)</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="19"/>
        <source>No points were found.</source>
        <translation>Es wurden keine Punkte gefunden.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="21"/>
        <source>A data set holds at most %d points.</source>
        <translation>Ein Datensatz enthält höchstens %d Punkte.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="25"/>
        <source>The text is too large for a data set of at most %d points.</source>
        <translation>Der Text ist zu groß für einen Datensatz mit höchstens %d Punkten.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="30"/>
        <source>Line %d does not hold two numbers.</source>
        <translation>Zeile %d enthält nicht zwei Zahlen.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="11"/>
        <source>No error occurred.</source>
        <translation>Es ist kein Fehler aufgetreten.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="12"/>
        <source>An unspecified error occurred.</source>
        <translation>Ein nicht näher bestimmter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="13"/>
        <source>The file could not be located.</source>
        <translation>Die Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="14"/>
        <source>All or part of the path is invalid.</source>
        <translation>Der Pfad ist ganz oder teilweise ungültig.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="15"/>
        <source>The permitted number of open files was exceeded.</source>
        <translation>Die zulässige Anzahl geöffneter Dateien wurde überschritten.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="16"/>
        <source>The file could not be accessed.</source>
        <translation>Auf die Datei konnte nicht zugegriffen werden.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="17"/>
        <source>There was an attempt to use an invalid file handle.</source>
        <translation>Es wurde versucht, ein ungültiges Datei-Handle zu verwenden.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="18"/>
        <source>The current working directory cannot be removed.</source>
        <translation>Das aktuelle Arbeitsverzeichnis kann nicht entfernt werden.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="19"/>
        <source>There are no more directory entries.</source>
        <translation>Es gibt keine weiteren Verzeichniseinträge.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="20"/>
        <source>There was an error trying to set the file pointer.</source>
        <translation>Beim Setzen des Dateizeigers ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="21"/>
        <source>There was a hardware error.</source>
        <translation>Es ist ein Hardwarefehler aufgetreten.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="22"/>
        <source>SHARE.EXE was not loaded, or a shared region was locked.</source>
        <translation>SHARE.EXE wurde nicht geladen, oder ein gemeinsam genutzter Bereich war gesperrt.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="23"/>
        <source>There was an attempt to lock a region that was already locked.</source>
        <translation>Es wurde versucht, einen bereits gesperrten Bereich zu sperren.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="24"/>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="25"/>
        <source>The end of file was reached.</source>
        <translation>Das Dateiende wurde erreicht.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="11"/>
        <source>File Open Error</source>
        <translation>Fehler beim Öffnen der Datei</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="12"/>
        <source>File Save Error</source>
        <translation>Fehler beim Speichern der Datei</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="9"/>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="59"/>
        <source>No data set found - nothing to save.</source>
        <translation>Kein Datensatz gefunden – nichts zu speichern.</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="10"/>
        <source>Wave File Error</source>
        <translation>Fehler bei der WAV-Datei</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="11"/>
        <source>Wave Files (*.wav)</source>
        <translation>WAV-Dateien (*.wav)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="17"/>
        <source>Basic Statistical Information</source>
        <translation>Statistische Grundwerte</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="18"/>
        <source>Linear: y = a + bx</source>
        <translation>Linear: y = a + bx</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="19"/>
        <source>Quadratic: y = ax^2 + bx + c</source>
        <translation>Quadratisch: y = ax^2 + bx + c</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="20"/>
        <source>Cubic: y = ax^3 + bx^2 + cx + d</source>
        <translation>Kubisch: y = ax^3 + bx^2 + cx + d</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="21"/>
        <source>Quartic: y = ax^4 + bx^3 + cx^2 + dx + e</source>
        <translation>Quartisch: y = ax^4 + bx^3 + cx^2 + dx + e</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="22"/>
        <source>Exponential: y = a b^x</source>
        <translation>Exponentiell: y = a b^x</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="23"/>
        <source>Logarithmic: y = a + b*ln(x)</source>
        <translation>Logarithmisch: y = a + b*ln(x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="24"/>
        <source>Power: y = a x^b</source>
        <translation>Potenz: y = a x^b</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="25"/>
        <source>Hyperbolic: y = a + b/x</source>
        <translation>Hyperbel: y = a + b/x</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="26"/>
        <source>Rational: y = a / (b + x)</source>
        <translation>Gebrochenrational: y = a / (b + x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="27"/>
        <source>Rational: y = ax / (b + x)</source>
        <translation>Gebrochenrational: y = ax / (b + x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="28"/>
        <source>Logistic: y = c / (1 + a*exp(-b*x))</source>
        <translation>Logistisch: y = c / (1 + a*exp(-b*x))</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="29"/>
        <source>Sinusoidal: y = a sin(bx+c) + d</source>
        <translation>Sinusförmig: y = a sin(bx+c) + d</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitText.cpp" line="19"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points:</source>
        <translation>Anzahl der Punkte:</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="146"/>
        <source>Start must be below finish.</source>
        <translation>Der Start muss kleiner als das Ende sein.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="150"/>
        <source>At least 2 points are needed.</source>
        <translation>Es werden mindestens 2 Punkte gebraucht.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="154"/>
        <source>At most %d points can be sampled.</source>
        <translation>Es können höchstens %d Punkte berechnet werden.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="167"/>
        <source>Point allocation error.</source>
        <translation>Fehler beim Anlegen der Punkte.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="180"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="196"/>
        <source>Range error: Check plot settings.</source>
        <translation>Bereichsfehler: Prüfen Sie die Zeichnen-Einstellungen.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="27"/>
        <source>These points cannot be fitted by this model.</source>
        <translation>Diese Punkte lassen sich mit diesem Modell nicht anpassen.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="37"/>
        <source>Regression analysis:</source>
        <translation>Regressionsanalyse:</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="56"/>
        <source>All x values are equal: no line can be fitted.</source>
        <translation>Alle x-Werte sind gleich: Es lässt sich keine Gerade anpassen.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="79"/>
        <source>undefined</source>
        <translation>nicht definiert</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="91"/>
        <source>Not enough points for fit.</source>
        <translation>Zu wenige Punkte für die Regression.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="96"/>
        <source>Invalid data set for polynomial fit.</source>
        <translation>Ungültiger Datensatz für die Polynomregression.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="168"/>
        <source>Invalid data set.  Y values must be &gt; 0.</source>
        <translation>Ungültiger Datensatz. Die y-Werte müssen größer als 0 sein.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="179"/>
        <source>Invalid data set.  X values must be &gt; 0.</source>
        <translation>Ungültiger Datensatz. Die x-Werte müssen größer als 0 sein.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="188"/>
        <source>Invalid data set.  X and Y values must be &gt; 0.</source>
        <translation>Ungültiger Datensatz. Die x- und y-Werte müssen größer als 0 sein.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="199"/>
        <location filename="../src/core/math/RegressionFit.cpp" line="220"/>
        <source>Invalid data set.  X values cannot = 0.</source>
        <translation>Ungültiger Datensatz. Die x-Werte dürfen nicht 0 sein.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="235"/>
        <source>Invalid data set for logistic fit.</source>
        <translation>Ungültiger Datensatz für die logistische Regression.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="248"/>
        <source>Invalid data set for sinusoidal fit.</source>
        <translation>Ungültiger Datensatz für die Sinusregression.</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="47"/>
        <source>Sum of x values:</source>
        <translation>Summe der x-Werte:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="48"/>
        <source>Mean value of x:</source>
        <translation>Mittelwert von x:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="49"/>
        <source>Sample standard deviation of x:</source>
        <translation>Stichproben-Standardabweichung von x:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="50"/>
        <source>Population standard deviation of x:</source>
        <translation>Standardabweichung der Grundgesamtheit von x:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="52"/>
        <source>Sum of y values:</source>
        <translation>Summe der y-Werte:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="53"/>
        <source>Mean value of y:</source>
        <translation>Mittelwert von y:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="54"/>
        <source>Sample standard deviation of y:</source>
        <translation>Stichproben-Standardabweichung von y:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="55"/>
        <source>Population standard deviation of y:</source>
        <translation>Standardabweichung der Grundgesamtheit von y:</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 1</source>
        <translation>Datensatz 1</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 2</source>
        <translation>Datensatz 2</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="102"/>
        <source>%s holds the fitted curve: %d points.</source>
        <translation>%s enthält die angepasste Kurve: %d Punkte.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="103"/>
        <source>%s is ready: %d points.</source>
        <translation>%s ist bereit: %d Punkte.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="148"/>
        <source>The clipboard does not hold a table of points.</source>
        <translation>Die Zwischenablage enthält keine Tabelle von Punkten.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="158"/>
        <source>%s: %d points pasted. Ctrl+Z brings back the previous set.</source>
        <translation>%s: %d Punkte eingefügt. Strg+Z holt den vorigen Datensatz zurück.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="172"/>
        <source>%s: %d points read from %s.</source>
        <translation>%s: %d Punkte aus %s gelesen.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="188"/>
        <source>Nothing to undo.</source>
        <translation>Nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="198"/>
        <source>%s is back as it was: %d points.</source>
        <translation>%s ist wieder wie vorher: %d Punkte.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="54"/>
        <source>user</source>
        <translation>eigene Werte</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="55"/>
        <source>clear</source>
        <translation>gelöscht</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="56"/>
        <source>file: </source>
        <translation>Datei: </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="42"/>
        <source>Expression : </source>
        <translation>Term : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="43"/>
        <source>Result : </source>
        <translation>Ergebnis : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="45"/>
        <source>A variable refers to itself.</source>
        <translation>Eine Variable verweist auf sich selbst.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="41"/>
        <source>Matrix Expression:</source>
        <translation>Matrixterm:</translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="42"/>
        <source>Error: Invalid matrix expression.</source>
        <translation>Fehler: Ungültiger Matrixterm.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/NumberEntry.cpp" line="52"/>
        <source>%s must be a number.</source>
        <translation>%s muss eine Zahl sein.</translation>
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
        <translation>Ende</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points</source>
        <translation>Anzahl der Punkte</translation>
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
        <translation>Ungültiger Definitionsbereich. Der Start muss kleiner als das Ende sein.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="29"/>
        <source>Invalid graph X range. X min must be less than X max.</source>
        <translation>Ungültiger X-Bereich des Graphen. X min muss kleiner als X max sein.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="31"/>
        <source>Invalid graph Y range. Y min must be less than Y max.</source>
        <translation>Ungültiger Y-Bereich des Graphen. Y min muss kleiner als Y max sein.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="76"/>
        <source>The number of points must be from %d to %d.</source>
        <translation>Die Anzahl der Punkte muss zwischen %d und %d liegen.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="59"/>
        <source>The width must be from %s to %s inches, the page&apos;s width.</source>
        <translation>Die Breite muss zwischen %s und %s Zoll liegen, der Breite der Seite.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="64"/>
        <source>The height must be from %s to %s inches, the page&apos;s height.</source>
        <translation>Die Höhe muss zwischen %s und %s Zoll liegen, der Höhe der Seite.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="70"/>
        <source>The number of copies must be from %d to %d.</source>
        <translation>Die Anzahl der Exemplare muss zwischen %d und %d liegen.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="76"/>
        <source>%.1f x %.1f inches</source>
        <translation>%.1f × %.1f Zoll</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="83"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="60"/>
        <source>y-axis times %s</source>
        <translation>y-Achse mal %s</translation>
    </message>
    <message>
        <location filename="../src/core/pages/SpeechPageForm.cpp" line="27"/>
        <source>The number of decimal places must be from %d to %d.</source>
        <translation>Die Anzahl der Nachkommastellen muss zwischen %d und %d liegen.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="32"/>
        <source>The number of tick marks must be from %d to %d.</source>
        <translation>Die Anzahl der Teilstriche muss zwischen %d und %d liegen.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="36"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="78"/>
        <source>Y Threshold Level</source>
        <translation>Y-Schwellenwert</translation>
    </message>
    <message>
        <location filename="../src/core/settings/FirstStart.h" line="17"/>
        <source>Self-voicing is on; Control+Q switches it off and on again.</source>
        <translation>Die eigene Sprachausgabe ist eingeschaltet; Strg+Q schaltet sie aus und wieder ein.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="18"/>
        <source>The data set is empty.</source>
        <translation>Der Datensatz ist leer.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>Last point.</source>
        <translation>Letzter Punkt.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>First point.</source>
        <translation>Erster Punkt.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further maximum.</source>
        <translation>Kein weiteres Maximum.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further minimum.</source>
        <translation>Kein weiteres Minimum.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="124"/>
        <source>No further crossing of the x-axis.</source>
        <translation>Kein weiterer Schnittpunkt mit der x-Achse.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="127"/>
        <source>No earlier crossing of the x-axis.</source>
        <translation>Kein früherer Schnittpunkt mit der x-Achse.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="134"/>
        <source>Data set 2 is empty.</source>
        <translation>Datensatz 2 ist leer.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="135"/>
        <source>Data set 1 is empty.</source>
        <translation>Datensatz 1 ist leer.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="142"/>
        <source>No further crossing of the two data sets.</source>
        <translation>Kein weiterer Schnittpunkt der beiden Datensätze.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/PlayTimeLimit.cpp" line="13"/>
        <source>The play time must be from %d to %d seconds.</source>
        <translation>Die Spieldauer muss zwischen %d und %d Sekunden liegen.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="12"/>
        <source>hexadecimal.</source>
        <translation>hexadezimal.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="12"/>
        <source>decimal.</source>
        <translation>dezimal.</translation>
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
        <translation>Grad.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>radians.</source>
        <translation>Bogenmaß.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="15"/>
        <source>grad.</source>
        <translation>Gon.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="9"/>
        <source>Display. </source>
        <translation>Anzeige. </translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="10"/>
        <source>inverse</source>
        <translation>invers</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="11"/>
        <source>hyperbolic</source>
        <translation>hyperbolisch</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="12"/>
        <source>right shift</source>
        <translation>Rechtsverschiebung</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="14"/>
        <source>Hyperbolic check box: checked.</source>
        <translation>Kontrollkästchen Hyperbolisch: aktiviert.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="15"/>
        <source>Hyperbolic check box: unchecked.</source>
        <translation>Kontrollkästchen Hyperbolisch: nicht aktiviert.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="16"/>
        <source>Inverse check box: checked.</source>
        <translation>Kontrollkästchen Invers: aktiviert.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="17"/>
        <source>Inverse check box: unchecked.</source>
        <translation>Kontrollkästchen Invers: nicht aktiviert.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="23"/>
        <source>backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="41"/>
        <source>left shift</source>
        <translation>Linksverschiebung</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="45"/>
        <source>e to the x</source>
        <translation>e hoch x</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="50"/>
        <source>x to the power y</source>
        <translation>x hoch y</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="51"/>
        <source>square root</source>
        <translation>Quadratwurzel</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="52"/>
        <source>one over x</source>
        <translation>eins durch x</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="53"/>
        <source>n factorial</source>
        <translation>n Fakultät</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="57"/>
        <source>plus minus</source>
        <translation>plus minus</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="59"/>
        <source>memory store</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="65"/>
        <source>memory plus</source>
        <translation>Speicher plus</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="70"/>
        <source>pie</source>
        <translation>Pi</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="71"/>
        <source>memory clear</source>
        <translation>Speicher löschen</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="73"/>
        <source>times</source>
        <translation>mal</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="77"/>
        <source>memory recall</source>
        <translation>Speicher abrufen</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="47"/>
        <source>x = %1, y = %2</source>
        <translation>x = %1; y = %2</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="52"/>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="67"/>
        <source>times ten to the</source>
        <translation>mal zehn hoch</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="58"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="186"/>
        <location filename="../src/ui/pages/CSettingsPage.cpp" line="41"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="59"/>
        <source>Infinity</source>
        <translation>Unendlich</translation>
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
        <translation> mal </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> divide </source>
        <translation> geteilt durch </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> begin matrix </source>
        <translation> Anfang Matrix </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> end matrix </source>
        <translation> Ende Matrix </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> column </source>
        <translation> Spalte </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> row </source>
        <translation> Zeile </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> to the power of </source>
        <translation> hoch </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> open paren </source>
        <translation> Klammer auf </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> close paren </source>
        <translation> Klammer zu </translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak everything</source>
        <translation>Alles sprechen</translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak only what the screen reader cannot</source>
        <translation>Nur sprechen, was der Screenreader nicht weiß</translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="18"/>
        <source>%1 (%2 to %3)</source>
        <translation>%1 (%2 bis %3)</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="166"/>
        <source>Voice %1, rate %2, pitch %3, volume %4.</source>
        <translation>Stimme %1, Tempo %2, Tonhöhe %3, Lautstärke %4.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="176"/>
        <source>%1 pronounces words by the rules of voice %2; it has no user lexicon.</source>
        <translation>%1 spricht Wörter nach den Regeln der Stimme %2 aus; es hat kein Benutzerlexikon.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="10"/>
        <source>Self-voicing activated.</source>
        <translation>Eigene Sprachausgabe eingeschaltet.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="12"/>
        <source>Self-voicing deactivated.</source>
        <translation>Eigene Sprachausgabe ausgeschaltet.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="39"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="43"/>
        <source>Licence: </source>
        <translation>Lizenz: </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="53"/>
        <source>Libraries used: </source>
        <translation>Verwendete Bibliotheken: </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="58"/>
        <source>About Sonalyx</source>
        <translation>Über Sonalyx</translation>
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
        <translation>mit Sonitrace-Technologie</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="73"/>
        <source>The Sonalyx is a scientific graphing </source>
        <translation>Sonalyx ist ein wissenschaftlicher grafikfähiger </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="74"/>
        <source>calculator.  It provides standard functions for computation and two </source>
        <translation>Taschenrechner. Er bietet die üblichen Rechenfunktionen und die </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="75"/>
        <source>dimensional graphing of mathematical expressions.  The Program is </source>
        <translation>zweidimensionale grafische Darstellung mathematischer Terme. Das Programm ist </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="76"/>
        <source>entirely self-voicing and provides auditory response for program navigation.</source>
        <translation>vollständig selbstsprechend und gibt bei der Bedienung hörbare Rückmeldungen.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="81"/>
        <source>Send comments and suggestions to:</source>
        <translation>Kommentare und Vorschläge bitte an:</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="91"/>
        <source>This program supplied as is.  No implied or </source>
        <translation>Dieses Programm wird so geliefert, wie es ist. Es gibt keine ausdrückliche oder </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="92"/>
        <source>expressed warranty exists for the performance </source>
        <translation>stillschweigende Gewährleistung für die Leistung </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="93"/>
        <source>and function of this software.</source>
        <translation>und die Funktion dieser Software.</translation>
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
        <translation>Schalter</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="25"/>
        <source>check box</source>
        <translation>Kontrollkästchen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="27"/>
        <source>radio button</source>
        <translation>Auswahlschalter</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="29"/>
        <source>edit</source>
        <translation>Eingabefeld</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="31"/>
        <source>combo box</source>
        <translation>Kombinationsfeld</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="33"/>
        <source>list</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="35"/>
        <source>list item</source>
        <translation>Listeneintrag</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="37"/>
        <source>tree</source>
        <translation>Baumansicht</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="39"/>
        <source>tree item</source>
        <translation>Baumeintrag</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="41"/>
        <source>table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="43"/>
        <source>cell</source>
        <translation>Zelle</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="45"/>
        <source>spin box</source>
        <translation>Drehfeld</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="47"/>
        <source>slider</source>
        <translation>Schieberegler</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="49"/>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="51"/>
        <source>link</source>
        <translation>Link</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="53"/>
        <source>tab</source>
        <translation>Registerkarte</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="55"/>
        <source>menu item</source>
        <translation>Menüeintrag</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>checked</source>
        <translation>aktiviert</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>not checked</source>
        <translation>nicht aktiviert</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="401"/>
        <source>&amp;Hide Graph</source>
        <translation>Graph aus&amp;blenden</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="402"/>
        <source>&amp;Show Graph</source>
        <translation>Graph an&amp;zeigen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>Print Error</source>
        <translation>Druckfehler</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>No data set found - nothing to print.</source>
        <translation>Kein Datensatz gefunden – nichts zu drucken.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: enabled.</source>
        <translation>Automatischer Rücksprung: eingeschaltet.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: disabled.</source>
        <translation>Automatischer Rücksprung: ausgeschaltet.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="58"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="110"/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="59"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="40"/>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="128"/>
        <source>. Grayed.</source>
        <translation>. Nicht verfügbar.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="32"/>
        <source>&amp;Open Data Set ...</source>
        <translation>Datensatz ö&amp;ffnen ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="33"/>
        <source>&amp;Save Data Set ...</source>
        <translation>Datensatz &amp;speichern ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="34"/>
        <source>&amp;Paste Data From Clipboard</source>
        <translation>Daten aus der Zwischenablage &amp;einfügen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="35"/>
        <source>&amp;Copy Data To Clipboard</source>
        <translation>Daten in die Zwischenablage &amp;kopieren</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="36"/>
        <source>&amp;Load Constants ...</source>
        <translation>Konstanten &amp;laden ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="37"/>
        <source>Sa&amp;ve Constants ...</source>
        <translation>Konstanten speic&amp;hern ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="38"/>
        <source>Res&amp;tore Default Parameters</source>
        <translation>Standardeinstellungen &amp;wiederherstellen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="39"/>
        <source>P&amp;rint GraphTABCtrl+P</source>
        <translation>Graph &amp;druckenTABCtrl+P</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="41"/>
        <source>&amp;Calculator</source>
        <translation>&amp;Rechner</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="42"/>
        <source>&amp;Evaluator</source>
        <translation>&amp;Termrechner</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="43"/>
        <source>Data Set &amp;1</source>
        <translation>Datensatz &amp;1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="44"/>
        <source>Data Set &amp;2</source>
        <translation>Datensatz &amp;2</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="45"/>
        <source>&amp;Matrices</source>
        <translation>&amp;Matrizen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="46"/>
        <source>&amp;Source</source>
        <translation>&amp;Quelle</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="47"/>
        <source>&amp;Calculus</source>
        <translation>A&amp;nalysis</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="48"/>
        <source>&amp;Axes</source>
        <translation>&amp;Achsen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="49"/>
        <source>&amp;Frame</source>
        <translation>&amp;Rahmen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="50"/>
        <source>&amp;Range</source>
        <translation>&amp;Bereich</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="51"/>
        <source>Speec&amp;h</source>
        <translation>&amp;Sprachausgabe</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="52"/>
        <source>&amp;Volume</source>
        <translation>&amp;Lautstärke</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="53"/>
        <source>&amp;Play Time</source>
        <translation>&amp;Spieldauer</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="54"/>
        <source>&amp;Frequency Range</source>
        <translation>&amp;Frequenzbereich</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="55"/>
        <source>&amp;Wave Type</source>
        <translation>&amp;Wellenform</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="56"/>
        <source>&amp;AutoReturn</source>
        <translation>&amp;Automatischer Rücksprung</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="57"/>
        <source>Self-&amp;VoicingTABCtrl+Q, Alt+S</source>
        <translation>&amp;Eigene SprachausgabeTABCtrl+Q, Alt+S</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="58"/>
        <source>&amp;LargerTABF8</source>
        <translation>&amp;GrößerTABF8</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="59"/>
        <source>&amp;SmallerTABF7</source>
        <translation>K&amp;leinerTABF7</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="60"/>
        <source>&amp;Evaluate Expression 1TABF4</source>
        <translation>Term &amp;1 auswertenTABF4</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="61"/>
        <source>&amp;Play Data SetTABF5</source>
        <translation>Datensatz &amp;abspielenTABF5</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="62"/>
        <source>Play Data and &amp;TicksTABF6</source>
        <translation>Daten mit &amp;Teilstrichen abspielenTABF6</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="63"/>
        <source>&amp;Write Wave File</source>
        <translation>&amp;WAV-Datei schreiben</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="64"/>
        <source>Find &amp;IntersectionTABAlt+I</source>
        <translation>&amp;Schnittpunkt suchenTABAlt+I</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="65"/>
        <source>Find &amp;ZerosTABAlt+0</source>
        <translation>&amp;Nullstellen suchenTABAlt+0</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="66"/>
        <source>&amp;Show GraphTABF3</source>
        <translation>Graph an&amp;zeigenTABF3</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="68"/>
        <source>&amp;User ManualTABF1</source>
        <translation>&amp;BenutzerhandbuchTABF1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="69"/>
        <source>&amp;Calculator Hotkeys</source>
        <translation>Tastenkürzel für den &amp;Rechner</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="70"/>
        <source>&amp;Graphing Hotkeys</source>
        <translation>Tastenkürzel für &amp;Graphen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="71"/>
        <source>&amp;Navigational Hotkeys</source>
        <translation>Tastenkürzel zur &amp;Navigation</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="79"/>
        <source>&amp;Online Help</source>
        <translation>&amp;Online-Hilfe</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="80"/>
        <source>&amp;About the Sonalyx ...</source>
        <translation>&amp;Info über Sonalyx ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="124"/>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="130"/>
        <source>&amp;Plot</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="138"/>
        <source>&amp;Wave</source>
        <translation>&amp;Klang</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="151"/>
        <source>&amp;Graph</source>
        <translation>&amp;Graph</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="161"/>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="38"/>
        <source>Open Data Set</source>
        <translation>Datensatz öffnen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="63"/>
        <source>Save Data Set</source>
        <translation>Datensatz speichern</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="72"/>
        <source>Saved %1 points as %2.</source>
        <translation>%1 Punkte als %2 gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="82"/>
        <source>%1 points copied to the clipboard.</source>
        <translation>%1 Punkte in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="26"/>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="28"/>
        <source>Left</source>
        <translation>Pfeil nach links</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="30"/>
        <source>Right</source>
        <translation>Pfeil nach rechts</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="32"/>
        <source>Up</source>
        <translation>Pfeil nach oben</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="34"/>
        <source>Down</source>
        <translation>Pfeil nach unten</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="36"/>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="38"/>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="40"/>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="42"/>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="44"/>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="46"/>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="60"/>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Ctrl</source>
        <translation>Strg</translation>
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
        <translation>Umschalt</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="130"/>
        <source>Stops the sound of the graph.</source>
        <translation>Hält den Klang des Graphen an.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="132"/>
        <source>Steps to the next point of the graph and says it.</source>
        <translation>Geht zum nächsten Punkt des Graphen und sagt ihn an.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="134"/>
        <source>Steps to the previous point of the graph and says it.</source>
        <translation>Geht zum vorigen Punkt des Graphen und sagt ihn an.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="136"/>
        <source>Steps to the next maximum of the graph.</source>
        <translation>Geht zum nächsten Maximum des Graphen.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="138"/>
        <source>Steps to the next minimum of the graph.</source>
        <translation>Geht zum nächsten Minimum des Graphen.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="140"/>
        <source>Goes to the first point of the graph.</source>
        <translation>Geht zum ersten Punkt des Graphen.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="142"/>
        <source>Goes to the last point of the graph.</source>
        <translation>Geht zum letzten Punkt des Graphen.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="144"/>
        <source>On the Matrix page: copies the matrix as a picture and as text.</source>
        <translation>Auf der Seite Matrix: kopiert die Matrix als Bild und als Text.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="146"/>
        <source>Steps back to the previous place where the graph crosses the x-axis.</source>
        <translation>Geht zurück zur vorigen Stelle, an der der Graph die x-Achse schneidet.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="156"/>
        <source>Says the display.</source>
        <translation>Sagt die Anzeige an.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="158"/>
        <source>Says the memory.</source>
        <translation>Sagt den Speicher an.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="160"/>
        <source>Ticks or clears Hyperbolic.</source>
        <translation>Aktiviert oder deaktiviert Hyperbolisch.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="162"/>
        <source>Ticks or clears Inverse.</source>
        <translation>Aktiviert oder deaktiviert Invers.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="164"/>
        <source>Right shift.</source>
        <translation>Rechtsverschiebung.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="166"/>
        <source>Recalls the memory.</source>
        <translation>Ruft den Speicher ab.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="174"/>
        <source>Goes to the next tab of the control panel.</source>
        <translation>Geht zur nächsten Registerkarte des Bedienfelds.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="175"/>
        <source>Goes to the previous tab of the control panel.</source>
        <translation>Geht zur vorigen Registerkarte des Bedienfelds.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="176"/>
        <source>Goes to the next control of the page.</source>
        <translation>Geht zum nächsten Steuerelement der Seite.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="177"/>
        <source>Goes to the previous control of the page.</source>
        <translation>Geht zum vorigen Steuerelement der Seite.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="178"/>
        <source>On the tabs: goes to the tab beside.</source>
        <translation>Auf den Registerkarten: geht zur benachbarten Registerkarte.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="180"/>
        <source>In a group of choices: chooses the one above or below; in a list: the item above or below.</source>
        <translation>In einer Gruppe von Auswahlmöglichkeiten: wählt die darüber oder darunter; in einer Liste: den Eintrag darüber oder darunter.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="181"/>
        <source>Presses the button, or ticks or clears the box, that has the focus.</source>
        <translation>Drückt den Schalter oder aktiviert oder deaktiviert das Kontrollkästchen, das den Fokus hat.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="183"/>
        <source>On a slider: moves it by one, by a page, or to an end.</source>
        <translation>Auf einem Schieberegler: bewegt ihn um einen Schritt, um eine Seite oder an ein Ende.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="184"/>
        <source>Opens the menu bar.</source>
        <translation>Öffnet die Menüleiste.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="185"/>
        <source>Closes a menu or a dialog.</source>
        <translation>Schließt ein Menü oder einen Dialog.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="237"/>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="260"/>
        <source>On the Evaluator and Matrix pages: evaluates the expression, or stores name = expression.</source>
        <translation>Auf den Seiten Termrechner und Matrix: wertet den Term aus oder speichert Name = Term.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="261"/>
        <source>On the Evaluator and Matrix pages: brings earlier entries back.</source>
        <translation>Auf den Seiten Termrechner und Matrix: holt frühere Eingaben zurück.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="262"/>
        <source>On the Data pages, in f(x): fills the table with f(x) over the function&apos;s domain.</source>
        <translation>Auf den Datenseiten, im Feld f(x): füllt die Tabelle mit f(x) über dem Definitionsbereich der Funktion.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="263"/>
        <source>On the Data pages: undoes a paste or a load of the data set.</source>
        <translation>Auf den Datenseiten: macht das Einfügen oder Laden des Datensatzes rückgängig.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="288"/>
        <source>Moving around the program</source>
        <translation>Im Programm bewegen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="289"/>
        <source>Hot keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="290"/>
        <source>The graph and its sound</source>
        <translation>Der Graph und sein Klang</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="306"/>
        <source>The menus</source>
        <translation>Die Menüs</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="307"/>
        <source>The Calculator page</source>
        <translation>Die Seite Rechner</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="308"/>
        <source>The Evaluator, Matrix and Data pages</source>
        <translation>Die Seiten Termrechner, Matrix und Daten</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="313"/>
        <location filename="../src/ui/app/KeyList.cpp" line="323"/>
        <source>Sonalyx keys</source>
        <translation>Tasten von Sonalyx</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="314"/>
        <source>Navigational hotkeys</source>
        <translation>Tastenkürzel zur Navigation</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="315"/>
        <source>Graphing hotkeys</source>
        <translation>Tastenkürzel für Graphen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="316"/>
        <source>Calculator hotkeys</source>
        <translation>Tastenkürzel für den Rechner</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="336"/>
        <source>This list is made from the program&apos;s own tables of keys.</source>
        <translation>Diese Liste wird aus den Tastentabellen des Programms selbst erstellt.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="337"/>
        <source>Back to the manual</source>
        <translation>Zurück zum Handbuch</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>What they do</source>
        <translation>Was sie tun</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="21"/>
        <location filename="../src/ui/app/ProductInfo.h" line="31"/>
        <source>GNU General Public License, version 3 or later</source>
        <translation>GNU General Public License, Version 3 oder später</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="30"/>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, Version 3</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="32"/>
        <location filename="../src/ui/app/ProductInfo.h" line="34"/>
        <location filename="../src/ui/app/ProductInfo.h" line="35"/>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, Version 2.1 oder später</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="33"/>
        <source>zlib License</source>
        <translation>zlib-Lizenz</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="36"/>
        <source>Mozilla Public License, version 2.0</source>
        <translation>Mozilla Public License, Version 2.0</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="37"/>
        <source>GNU General Public License, version 2</source>
        <translation>GNU General Public License, Version 2</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="44"/>
        <source>Button. </source>
        <translation>Schalter. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="47"/>
        <source>Check box. </source>
        <translation>Kontrollkästchen. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="50"/>
        <source>Radio button. </source>
        <translation>Auswahlschalter. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="57"/>
        <source> Checked.</source>
        <translation> Aktiviert.</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <source> Unchecked.</source>
        <translation> Nicht aktiviert.</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSEdit.cpp" line="42"/>
        <source>Backspace. </source>
        <translation>Rücktaste. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSListBox.cpp" line="22"/>
        <source>Blank line</source>
        <translation>Leerzeile</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSStatic.cpp" line="21"/>
        <source>Label. </source>
        <translation>Beschriftung. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSTabCtrl.cpp" line="18"/>
        <source>screen.</source>
        <translation>Seite.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="78"/>
        <source>SLX - Data Plot Print Setup</source>
        <translation>SLX – Druckeinrichtung für den Datenplot</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="84"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="94"/>
        <source>Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="88"/>
        <source>No printer installed</source>
        <translation>Kein Drucker installiert</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="89"/>
        <source>With no printer, Print saves the graph as a PDF file.</source>
        <translation>Ohne Drucker speichert Drucken den Graphen als PDF-Datei.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="95"/>
        <source>Print to file</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="96"/>
        <source>Saves the page as a PDF file instead of printing it.</source>
        <translation>Speichert die Seite als PDF-Datei, statt sie zu drucken.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="103"/>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="100"/>
        <source>The PDF file the page is saved in.</source>
        <translation>Die PDF-Datei, in der die Seite gespeichert wird.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="115"/>
        <source>Font:</source>
        <translation>Schriftart:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="113"/>
        <source>Font size:</source>
        <translation>Schriftgröße:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="117"/>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="131"/>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="120"/>
        <source>The graph&apos;s width on paper, in inches.</source>
        <translation>Die Breite des Graphen auf dem Papier, in Zoll.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="132"/>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="123"/>
        <source>The graph&apos;s height on paper, in inches.</source>
        <translation>Die Höhe des Graphen auf dem Papier, in Zoll.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="125"/>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="126"/>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="136"/>
        <source>Paper size:</source>
        <translation>Papierformat:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="139"/>
        <source>Number of copies:</source>
        <translation>Anzahl der Exemplare:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <source>Number of copies</source>
        <translation>Anzahl der Exemplare</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="143"/>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="141"/>
        <source>Printed above the graph.</source>
        <translation>Wird über dem Graphen gedruckt.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="145"/>
        <source>Data Style</source>
        <translation>Darstellung der Daten</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw Data Points</source>
        <translation>Datenpunkte zeichnen</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw line through points</source>
        <translation>Linie durch die Punkte zeichnen</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="148"/>
        <source>Draw both line and data points</source>
        <translation>Linie und Datenpunkte zeichnen</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="156"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="122"/>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="158"/>
        <source>Show X-Axis</source>
        <translation>X-Achse anzeigen</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="159"/>
        <source>Show Y-Axis</source>
        <translation>Y-Achse anzeigen</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="164"/>
        <source>Axis Labels</source>
        <translation>Achsenbeschriftung</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="166"/>
        <source>X Labels</source>
        <translation>X-Beschriftung</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="167"/>
        <source>Y Labels</source>
        <translation>Y-Beschriftung</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="172"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="58"/>
        <source>Tick Marks</source>
        <translation>Teilstriche</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>No Tick Marks</source>
        <translation>Keine Teilstriche</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>Grid Lines</source>
        <translation>Gitterlinien</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="182"/>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="190"/>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="191"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="79"/>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="45"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="240"/>
        <source>No printer is installed: the graph can only be saved as a PDF file.</source>
        <translation>Es ist kein Drucker installiert: Der Graph kann nur als PDF-Datei gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="380"/>
        <source>Type the name of the PDF file to save the graph in.</source>
        <translation>Geben Sie den Namen der PDF-Datei ein, in der der Graph gespeichert werden soll.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="400"/>
        <source>The graph could not be printed on %s.</source>
        <translation>Der Graph konnte nicht auf %s gedruckt werden.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="403"/>
        <source>The graph is printed on %s.</source>
        <translation>Der Graph wird auf %s gedruckt.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="404"/>
        <source>The graph is saved in %s.</source>
        <translation>Der Graph ist in %s gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="426"/>
        <source>No printer is installed: Print saves the graph as a PDF file.</source>
        <translation>Es ist kein Drucker installiert: Drucken speichert den Graphen als PDF-Datei.</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="74"/>
        <source>Write Wave File</source>
        <translation>WAV-Datei schreiben</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="94"/>
        <source>Wave file written: %s.</source>
        <translation>WAV-Datei geschrieben: %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="32"/>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="84"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="26"/>
        <source>Graph</source>
        <translation>Graph</translation>
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
        <translation>Datensatz 1</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="61"/>
        <source>Data Set 2</source>
        <translation>Datensatz 2</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="53"/>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="77"/>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
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
        <translation>Meldung</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="78"/>
        <source>Coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="80"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="82"/>
        <source>Rectangle</source>
        <translation>Kartesisch</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="81"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="83"/>
        <source>Polar</source>
        <translation>Polar</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 1 table</source>
        <translation>Tabelle von Datensatz 1</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 2 table</source>
        <translation>Tabelle von Datensatz 2</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="103"/>
        <source>Statistical Description of Data Set</source>
        <translation>Statistische Beschreibung des Datensatzes</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="106"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="108"/>
        <source>Mode:</source>
        <translation>Modell:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="118"/>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="46"/>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="120"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="121"/>
        <source>Plot Fitted Curve</source>
        <translation>Angepasste Kurve zeichnen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="130"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Evaluate Statistics</source>
        <translation>Statistik berechnen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="135"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="136"/>
        <source>Plot Data Set 2</source>
        <translation>Datensatz 2 zeichnen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="250"/>
        <source>Empty Data Set</source>
        <translation>Leerer Datensatz</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="251"/>
        <source>No data plotted -- nothing to calculate.</source>
        <translation>Keine Daten gezeichnet – nichts zu berechnen.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Return to Data Table</source>
        <translation>Zurück zur Datentabelle</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="273"/>
        <source>Sinusoidal Fit Parameters</source>
        <translation>Parameter der Sinusregression</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="274"/>
        <source>Period: </source>
        <translation>Periode: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="276"/>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="277"/>
        <source>Use Default</source>
        <translation>Standard verwenden</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="291"/>
        <source>A fit needs at least two points.</source>
        <translation>Eine Regression braucht mindestens zwei Punkte.</translation>
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
        <translation>neuer Punkt</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="64"/>
        <source>blank</source>
        <translation>leer</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="70"/>
        <source>New point.</source>
        <translation>Neuer Punkt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="71"/>
        <source>Row %1: </source>
        <translation>Zeile %1: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataTableView.cpp" line="46"/>
        <source>Empty.</source>
        <translation>Leer.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source>Keyboard: </source>
        <translation>Tastatur: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="127"/>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="128"/>
        <source>Ctrl+B says the display again, Ctrl+T the memory.</source>
        <translation>Strg+B sagt die Anzeige noch einmal an, Strg+T den Speicher.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="142"/>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="143"/>
        <source>Shows M while the memory holds a value.</source>
        <translation>Zeigt M, solange der Speicher einen Wert enthält.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Dec</source>
        <translation>Dez</translation>
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
        <translation>Zahlensystem</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="153"/>
        <source>Hexadecimal, decimal, octal or binary</source>
        <translation>Hexadezimal, dezimal, oktal oder binär</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Deg</source>
        <translation>Deg</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Rad</source>
        <translation>Rad</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="158"/>
        <source>Grad</source>
        <translation>Gon</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Angle unit</source>
        <translation>Winkeleinheit</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Degrees, radians or grad</source>
        <translation>Grad, Bogenmaß oder Gon</translation>
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
        <translation>Der Speicher ist leer.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="324"/>
        <source>Memory: </source>
        <translation>Speicher: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="30"/>
        <source>Expression</source>
        <translation>Term</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="32"/>
        <source>Enter evaluates it or stores name = expression; Up and Down bring earlier entries back.</source>
        <translation>Die Eingabetaste wertet ihn aus oder speichert Name = Term; Pfeil nach oben und Pfeil nach unten holen frühere Eingaben zurück.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="33"/>
        <source>Expression:</source>
        <translation>Term:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="39"/>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="40"/>
        <source>The result of the last entry.</source>
        <translation>Das Ergebnis der letzten Eingabe.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="41"/>
        <source>Result:</source>
        <translation>Ergebnis:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="47"/>
        <source>Every entry with its result, the newest first.</source>
        <translation>Jede Eingabe mit ihrem Ergebnis, die neueste zuerst.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="37"/>
        <source>Matrix expression</source>
        <translation>Matrixterm</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="38"/>
        <source>Enter evaluates it or stores NAME = expression; ANS is the last result; Up and Down bring earlier entries back.</source>
        <translation>Die Eingabetaste wertet ihn aus oder speichert NAME = Term; ANS ist das letzte Ergebnis; Pfeil nach oben und Pfeil nach unten holen frühere Eingaben zurück.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="89"/>
        <source>Matrix copied to the clipboard.</source>
        <translation>Matrix in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="90"/>
        <source>There is no matrix to copy.</source>
        <translation>Es gibt keine Matrix zum Kopieren.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="54"/>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="161"/>
        <source>Matrix display</source>
        <translation>Matrixanzeige</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="56"/>
        <source>The last result, typeset; its context menu copies it to the clipboard.</source>
        <translation>Das letzte Ergebnis, formatiert gesetzt; sein Kontextmenü kopiert es in die Zwischenablage.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="191"/>
        <source>Copy To Clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Where f(x) is first sampled.</source>
        <translation>Wo f(x) zuerst berechnet wird.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="35"/>
        <source>Finish:</source>
        <translation>Ende:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="36"/>
        <source>Where f(x) is last sampled; above Start.</source>
        <translation>Wo f(x) zuletzt berechnet wird; größer als Start.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source># Pts:</source>
        <translation>Anz. Pkt.:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="38"/>
        <source>How many points f(x) is sampled at.</source>
        <translation>An wie vielen Punkten f(x) berechnet wird.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min:</source>
        <translation>X min:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>The left end of the graph.</source>
        <translation>Das linke Ende des Graphen.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max:</source>
        <translation>X max:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>The right end of the graph.</source>
        <translation>Das rechte Ende des Graphen.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min:</source>
        <translation>Y min:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>The bottom of the graph.</source>
        <translation>Der untere Rand des Graphen.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max:</source>
        <translation>Y max:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>The top of the graph.</source>
        <translation>Der obere Rand des Graphen.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="57"/>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="62"/>
        <source>Sum (1+2)</source>
        <translation>Summe (1+2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1-2)</source>
        <translation>Differenz (1-2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1 minus 2)</source>
        <translation>Differenz (1 minus 2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="72"/>
        <source>Calculus Plot</source>
        <translation>Analysis-Darstellung</translation>
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
        <translation>Ableitung</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="94"/>
        <source>Function Domain</source>
        <translation>Definitionsbereich</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="99"/>
        <source>Graph Range</source>
        <translation>Bereich des Graphen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="104"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="109"/>
        <source>Auto-Scale</source>
        <translation>Automatisch skalieren</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="105"/>
        <source>X Auto-Scale</source>
        <translation>X automatisch skalieren</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="110"/>
        <source>Y Auto-Scale</source>
        <translation>Y automatisch skalieren</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="113"/>
        <source>Mode</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="116"/>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="118"/>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="120"/>
        <source>Error Bars</source>
        <translation>Fehlerbalken</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="125"/>
        <source>Show X-axis</source>
        <translation>X-Achse anzeigen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="128"/>
        <source>Show Y-axis</source>
        <translation>Y-Achse anzeigen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="129"/>
        <source>Display X labels</source>
        <translation>X-Beschriftung anzeigen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="131"/>
        <source>Display Y labels</source>
        <translation>Y-Beschriftung anzeigen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="134"/>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>No ticks or grid.</source>
        <translation>Keine Teilstriche und kein Gitter.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Tick</source>
        <translation>Teilstriche</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Grid</source>
        <translation>Gitter</translation>
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
        <translation>Aussprachen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="52"/>
        <source>Each word and how the voice says it.</source>
        <translation>Jedes Wort und wie die Stimme es ausspricht.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="53"/>
        <source>Pronunciations:</source>
        <translation>Aussprachen:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="57"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="63"/>
        <source>Word:</source>
        <translation>Wort:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="58"/>
        <source>The word as the program writes it.</source>
        <translation>Das Wort, wie das Programm es schreibt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="60"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="64"/>
        <source>Say as:</source>
        <translation>Sprich als:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="61"/>
        <source>How the voice is to say it.</source>
        <translation>Wie die Stimme es aussprechen soll.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Puts the word and how to say it in the list.</source>
        <translation>Setzt das Wort und seine Aussprache in die Liste.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Takes the chosen word out of the list.</source>
        <translation>Nimmt das gewählte Wort aus der Liste.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="112"/>
        <source>Type a word first.</source>
        <translation>Geben Sie zuerst ein Wort ein.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="121"/>
        <source>Added %1, said as %2.</source>
        <translation>%1 hinzugefügt, gesprochen als %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="127"/>
        <source>The list is empty.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="133"/>
        <source>Removed %1.</source>
        <translation>%1 entfernt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="23"/>
        <source>eSpeak NG</source>
        <translation>eSpeak NG</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="24"/>
        <source>System speech service</source>
        <translation>Sprachdienst des Systems</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="30"/>
        <source>Speech engine</source>
        <translation>Sprachsynthese</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="32"/>
        <source>Speak with:</source>
        <translation>Sprechen mit:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="46"/>
        <source>No speech engine is running.</source>
        <translation>Es läuft keine Sprachsynthese.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="47"/>
        <source>Speech engine: %1. Voice: %2.</source>
        <translation>Sprachsynthese: %1. Stimme: %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="54"/>
        <source>About TTS. This button tells the name, version and voice of your speech engine.</source>
        <translation>Über TTS. Dieser Schalter nennt Name, Version und Stimme Ihrer Sprachsynthese.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="56"/>
        <source>General. This button chooses the speech engine: eSpeak NG or the system&apos;s speech service.</source>
        <translation>Allgemein. Dieser Schalter wählt die Sprachsynthese: eSpeak NG oder den Sprachdienst des Systems.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="57"/>
        <source>Translate. This button only says what it is for: Sonalyx speaks in the language of your desktop, so choose a voice of that language in the list of voices.</source>
        <translation>Übersetzen. Dieser Schalter sagt nur, wofür er da ist: Sonalyx spricht in der Sprache Ihres Desktops; wählen Sie daher in der Liste der Stimmen eine Stimme dieser Sprache.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="61"/>
        <source>Lexicon. This button opens the pronunciation list: words and how the voice says them.</source>
        <translation>Lexikon. Dieser Schalter öffnet die Ausspracheliste: Wörter und wie die Stimme sie ausspricht.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="68"/>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="74"/>
        <source>Number of decimal places to voice:</source>
        <translation>Anzahl der gesprochenen Nachkommastellen:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <source>Number of decimal places to voice</source>
        <translation>Anzahl der gesprochenen Nachkommastellen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="72"/>
        <source>How many decimal places spoken numbers keep, from 0 to 15.</source>
        <translation>Wie viele Nachkommastellen gesprochene Zahlen behalten, von 0 bis 15.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="85"/>
        <source>Voice</source>
        <translation>Stimme</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="89"/>
        <source>Voices</source>
        <translation>Stimmen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="90"/>
        <source>The voices of the speech engine; the chosen one speaks.</source>
        <translation>Die Stimmen der Sprachsynthese; die gewählte spricht.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="92"/>
        <source>Voices:</source>
        <translation>Stimmen:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>Rate</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>How fast the voice speaks.</source>
        <translation>Wie schnell die Stimme spricht.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>Pitch</source>
        <translation>Tonhöhe</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>How high the voice speaks.</source>
        <translation>Wie hoch die Stimme spricht.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="52"/>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <source>How loud the voice speaks.</source>
        <translation>Wie laut die Stimme spricht.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="109"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>percent.</source>
        <translation>Prozent.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="121"/>
        <source>Self-Voicing</source>
        <translation>Eigene Sprachausgabe</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="123"/>
        <source>Sound Effects</source>
        <translation>Klangeffekte</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="125"/>
        <source>Allow Self-Voicing</source>
        <translation>Eigene Sprachausgabe erlauben</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="128"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="135"/>
        <source>Beside a screen reader:</source>
        <translation>Neben einem Screenreader:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="129"/>
        <source>What self-voicing says while a screen reader runs: everything, or only what the screen reader cannot know.</source>
        <translation>Was die eigene Sprachausgabe sagt, während ein Screenreader läuft: alles oder nur das, was der Screenreader nicht wissen kann.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: checked.</source>
        <translation>Klangeffekte erlauben: aktiviert.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: unchecked.</source>
        <translation>Klangeffekte erlauben: nicht aktiviert.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="156"/>
        <source>Speech Engine</source>
        <translation>Sprachsynthese</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="158"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="252"/>
        <source>About TTS</source>
        <translation>Über TTS</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="159"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="160"/>
        <source>Translate</source>
        <translation>Übersetzen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="268"/>
        <source>SONALYX_SPEECH chooses the engine of this run; %1 speaks from the next start without it.</source>
        <translation>SONALYX_SPEECH wählt die Sprachsynthese dieses Laufs; %1 spricht ab dem nächsten Start ohne diese Variable.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="270"/>
        <source>%1 speaks now.</source>
        <translation>%1 spricht jetzt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="273"/>
        <source>%1 cannot start here; the voice stays as it was.</source>
        <translation>%1 kann hier nicht starten; die Stimme bleibt, wie sie war.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="40"/>
        <source>Play Time (%d sec.)</source>
        <translation>Spieldauer (%d Sekunden)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set:</source>
        <translation>Datensatz:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set volume:</source>
        <translation>Lautstärke des Datensatzes:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="55"/>
        <source>How loud the curve plays.</source>
        <translation>Wie laut die Kurve spielt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="57"/>
        <source>Tick Marks:</source>
        <translation>Teilstriche:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>Tick volume:</source>
        <translation>Lautstärke der Teilstriche:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="63"/>
        <source>How loud the tick marks click.</source>
        <translation>Wie laut die Teilstriche klicken.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="70"/>
        <source># of vertical tick marks:</source>
        <translation>Anz. senkrechter Teilstriche:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <source>Number of vertical tick marks</source>
        <translation>Anzahl der senkrechten Teilstriche</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="68"/>
        <source>How many tick marks a sweep passes, from 5 to 15.</source>
        <translation>Wie viele Teilstriche ein Durchlauf passiert, von 5 bis 15.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="75"/>
        <source>Y Threshold</source>
        <translation>Y-Schwelle</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="77"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y Threshold Level:</source>
        <translation>Y-Schwellenwert:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y threshold level</source>
        <translation>Y-Schwellenwert</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="81"/>
        <source>Below this y the tone turns buzzier, so you hear where the curve passes it.</source>
        <translation>Unterhalb dieses y-Werts klingt der Ton rauer, so hören Sie, wo die Kurve ihn kreuzt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>Play time:</source>
        <translation>Spieldauer:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>seconds.</source>
        <translation>Sekunden.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="90"/>
        <source>How long the whole curve plays.</source>
        <translation>Wie lange die ganze Kurve spielt.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="109"/>
        <source>Wave Type</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="111"/>
        <source>Mono output</source>
        <translation>Mono-Ausgabe</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="112"/>
        <source>Stereo output</source>
        <translation>Stereo-Ausgabe</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="121"/>
        <source>Frequency Range</source>
        <translation>Frequenzbereich</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Frequency minimum</source>
        <translation>Minimale Frequenz</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>hertz.</source>
        <translation>Hertz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="124"/>
        <source>The pitch of the lowest y.</source>
        <translation>Die Tonhöhe des kleinsten y.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Frequency maximum</source>
        <translation>Maximale Frequenz</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="127"/>
        <source>The pitch of the highest y.</source>
        <translation>Die Tonhöhe des größten y.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="134"/>
        <source>Auto-speak Coordinates</source>
        <translation>Koordinaten automatisch ansagen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="136"/>
        <source>Speak X and Y values at each step</source>
        <translation>Bei jedem Schritt X- und Y-Wert ansagen</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Plot</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Wave</source>
        <translation>Klang</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Speech</source>
        <translation>Sprachausgabe</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Calculator</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 1</source>
        <translation>Daten 1</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 2</source>
        <translation>Daten 2</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Evaluator</source>
        <translation>Termrechner</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="60"/>
        <source>Control panel</source>
        <translation>Bedienfeld</translation>
    </message>
</context>
</TS>
