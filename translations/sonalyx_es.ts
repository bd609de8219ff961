<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
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
        <translation>menos</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="20"/>
        <source>Cannot divide by zero</source>
        <translation>No se puede dividir entre cero</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="21"/>
        <source>Result is undefined</source>
        <translation>El resultado no está definido</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="22"/>
        <source>Invalid input</source>
        <translation>Entrada no válida</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="23"/>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="14"/>
        <source>The expression is empty.</source>
        <translation>La expresión está vacía.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="16"/>
        <source>The expression ends too early.</source>
        <translation>La expresión termina antes de tiempo.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="18"/>
        <source>Missing closing bracket.</source>
        <translation>Falta un paréntesis de cierre.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="20"/>
        <source>Unknown name %s.</source>
        <translation>Nombre desconocido: %s.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="22"/>
        <source>%s needs its argument in brackets.</source>
        <translation>%s necesita su argumento entre paréntesis.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="24"/>
        <source>Unexpected &quot;%s&quot;.</source>
        <translation>No se esperaba «%s».</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="26"/>
        <source>The expression is nested too deeply.</source>
        <translation>La expresión tiene demasiados niveles de paréntesis.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="28"/>
        <source>Write a * between a number and x.</source>
        <translation>Escriba un * entre un número y la x.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="30"/>
        <source>The expression is longer than %s characters.</source>
        <translation>La expresión tiene más de %s caracteres.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="44"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="136"/>
        <location filename="../src/core/pages/DataPageSession.cpp" line="76"/>
        <location filename="../src/core/pages/EvaluatorSession.h" line="44"/>
        <source>Invalid entry.</source>
        <translation>Entrada no válida.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetFile.h" line="23"/>
        <source>SLX Data Files (*.set)</source>
        <translation>Archivos de datos SLX (*.set)</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="19"/>
        <source>No points were found.</source>
        <translation>No se ha encontrado ningún punto.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="21"/>
        <source>A data set holds at most %d points.</source>
        <translation>Un conjunto de datos admite como máximo %d puntos.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="25"/>
        <source>The text is too large for a data set of at most %d points.</source>
        <translation>El texto es demasiado grande para un conjunto de datos de %d puntos como máximo.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="30"/>
        <source>Line %d does not hold two numbers.</source>
        <translation>La línea %d no contiene dos números.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="11"/>
        <source>No error occurred.</source>
        <translation>No se ha producido ningún error.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="12"/>
        <source>An unspecified error occurred.</source>
        <translation>Se ha producido un error no especificado.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="13"/>
        <source>The file could not be located.</source>
        <translation>No se ha encontrado el archivo.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="14"/>
        <source>All or part of the path is invalid.</source>
        <translation>La ruta no es válida, en todo o en parte.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="15"/>
        <source>The permitted number of open files was exceeded.</source>
        <translation>Se ha superado el número permitido de archivos abiertos.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="16"/>
        <source>The file could not be accessed.</source>
        <translation>No se ha podido acceder al archivo.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="17"/>
        <source>There was an attempt to use an invalid file handle.</source>
        <translation>Se ha intentado usar un identificador de archivo no válido.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="18"/>
        <source>The current working directory cannot be removed.</source>
        <translation>No se puede eliminar la carpeta de trabajo actual.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="19"/>
        <source>There are no more directory entries.</source>
        <translation>No hay más entradas en la carpeta.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="20"/>
        <source>There was an error trying to set the file pointer.</source>
        <translation>Se ha producido un error al colocar el puntero del archivo.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="21"/>
        <source>There was a hardware error.</source>
        <translation>Se ha producido un error de hardware.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="22"/>
        <source>SHARE.EXE was not loaded, or a shared region was locked.</source>
        <translation>SHARE.EXE no estaba cargado, o una región compartida estaba bloqueada.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="23"/>
        <source>There was an attempt to lock a region that was already locked.</source>
        <translation>Se ha intentado bloquear una región que ya estaba bloqueada.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="24"/>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="25"/>
        <source>The end of file was reached.</source>
        <translation>Se ha llegado al final del archivo.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="11"/>
        <source>File Open Error</source>
        <translation>Error al abrir el archivo</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="12"/>
        <source>File Save Error</source>
        <translation>Error al guardar el archivo</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="9"/>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="59"/>
        <source>No data set found - nothing to save.</source>
        <translation>No hay ningún conjunto de datos: no hay nada que guardar.</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="10"/>
        <source>Wave File Error</source>
        <translation>Error del archivo WAV</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="11"/>
        <source>Wave Files (*.wav)</source>
        <translation>Archivos WAV (*.wav)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="17"/>
        <source>Basic Statistical Information</source>
        <translation>Información estadística básica</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="18"/>
        <source>Linear: y = a + bx</source>
        <translation>Lineal: y = a + bx</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="19"/>
        <source>Quadratic: y = ax^2 + bx + c</source>
        <translation>Cuadrática: y = ax^2 + bx + c</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="20"/>
        <source>Cubic: y = ax^3 + bx^2 + cx + d</source>
        <translation>Cúbica: y = ax^3 + bx^2 + cx + d</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="21"/>
        <source>Quartic: y = ax^4 + bx^3 + cx^2 + dx + e</source>
        <translation>De grado cuatro: y = ax^4 + bx^3 + cx^2 + dx + e</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="22"/>
        <source>Exponential: y = a b^x</source>
        <translation>Exponencial: y = a b^x</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="23"/>
        <source>Logarithmic: y = a + b*ln(x)</source>
        <translation>Logarítmica: y = a + b*ln(x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="24"/>
        <source>Power: y = a x^b</source>
        <translation>Potencial: y = a x^b</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="25"/>
        <source>Hyperbolic: y = a + b/x</source>
        <translation>Hiperbólica: y = a + b/x</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="26"/>
        <source>Rational: y = a / (b + x)</source>
        <translation>Racional: y = a / (b + x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="27"/>
        <source>Rational: y = ax / (b + x)</source>
        <translation>Racional: y = ax / (b + x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="28"/>
        <source>Logistic: y = c / (1 + a*exp(-b*x))</source>
        <translation>Logística: y = c / (1 + a*exp(-b*x))</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="29"/>
        <source>Sinusoidal: y = a sin(bx+c) + d</source>
        <translation>Sinusoidal: y = a sin(bx+c) + d</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitText.cpp" line="19"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points:</source>
        <translation>Número de puntos:</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="146"/>
        <source>Start must be below finish.</source>
        <translation>El inicio debe ser menor que el fin.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="150"/>
        <source>At least 2 points are needed.</source>
        <translation>Se necesitan al menos 2 puntos.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="154"/>
        <source>At most %d points can be sampled.</source>
        <translation>Se pueden muestrear como máximo %d puntos.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="167"/>
        <source>Point allocation error.</source>
        <translation>Error al reservar los puntos.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="180"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="196"/>
        <source>Range error: Check plot settings.</source>
        <translation>Error de intervalo: revise los ajustes de trazado.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="27"/>
        <source>These points cannot be fitted by this model.</source>
        <translation>Estos puntos no se pueden ajustar con este modelo.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="37"/>
        <source>Regression analysis:</source>
        <translation>Análisis de regresión:</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="56"/>
        <source>All x values are equal: no line can be fitted.</source>
        <translation>Todos los valores de x son iguales: no se puede ajustar ninguna recta.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="79"/>
        <source>undefined</source>
        <translation>indefinido</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="91"/>
        <source>Not enough points for fit.</source>
        <translation>No hay puntos suficientes para el ajuste.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="96"/>
        <source>Invalid data set for polynomial fit.</source>
        <translation>Conjunto de datos no válido para el ajuste polinómico.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="168"/>
        <source>Invalid data set.  Y values must be &gt; 0.</source>
        <translation>Conjunto de datos no válido. Los valores de y deben ser mayores que 0.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="179"/>
        <source>Invalid data set.  X values must be &gt; 0.</source>
        <translation>Conjunto de datos no válido. Los valores de x deben ser mayores que 0.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="188"/>
        <source>Invalid data set.  X and Y values must be &gt; 0.</source>
        <translation>Conjunto de datos no válido. Los valores de x y de y deben ser mayores que 0.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="199"/>
        <location filename="../src/core/math/RegressionFit.cpp" line="220"/>
        <source>Invalid data set.  X values cannot = 0.</source>
        <translation>Conjunto de datos no válido. Los valores de x no pueden ser 0.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="235"/>
        <source>Invalid data set for logistic fit.</source>
        <translation>Conjunto de datos no válido para el ajuste logístico.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="248"/>
        <source>Invalid data set for sinusoidal fit.</source>
        <translation>Conjunto de datos no válido para el ajuste sinusoidal.</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="47"/>
        <source>Sum of x values:</source>
        <translation>Suma de los valores de x:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="48"/>
        <source>Mean value of x:</source>
        <translation>Media de x:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="49"/>
        <source>Sample standard deviation of x:</source>
        <translation>Desviación típica muestral de x:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="50"/>
        <source>Population standard deviation of x:</source>
        <translation>Desviación típica poblacional de x:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="52"/>
        <source>Sum of y values:</source>
        <translation>Suma de los valores de y:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="53"/>
        <source>Mean value of y:</source>
        <translation>Media de y:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="54"/>
        <source>Sample standard deviation of y:</source>
        <translation>Desviación típica muestral de y:</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="55"/>
        <source>Population standard deviation of y:</source>
        <translation>Desviación típica poblacional de y:</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 1</source>
        <translation>Conjunto de datos 1</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 2</source>
        <translation>Conjunto de datos 2</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="102"/>
        <source>%s holds the fitted curve: %d points.</source>
        <translation>%s contiene la curva ajustada: %d puntos.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="103"/>
        <source>%s is ready: %d points.</source>
        <translation>%s está listo: %d puntos.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="148"/>
        <source>The clipboard does not hold a table of points.</source>
        <translation>El portapapeles no contiene una tabla de puntos.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="158"/>
        <source>%s: %d points pasted. Ctrl+Z brings back the previous set.</source>
        <translation>%s: %d puntos pegados. Control+Z recupera el conjunto anterior.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="172"/>
        <source>%s: %d points read from %s.</source>
        <translation>%s: %d puntos leídos de %s.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="188"/>
        <source>Nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="198"/>
        <source>%s is back as it was: %d points.</source>
        <translation>%s vuelve a estar como antes: %d puntos.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="54"/>
        <source>user</source>
        <translation>usuario</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="55"/>
        <source>clear</source>
        <translation>borrado</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="56"/>
        <source>file: </source>
        <translation>archivo: </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="42"/>
        <source>Expression : </source>
        <translation>Expresión : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="43"/>
        <source>Result : </source>
        <translation>Resultado : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="45"/>
        <source>A variable refers to itself.</source>
        <translation>Una variable se refiere a sí misma.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="41"/>
        <source>Matrix Expression:</source>
        <translation>Expresión matricial:</translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="42"/>
        <source>Error: Invalid matrix expression.</source>
        <translation>Error: expresión matricial no válida.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/NumberEntry.cpp" line="52"/>
        <source>%s must be a number.</source>
        <translation>%s debe ser un número.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="35"/>
        <source>Finish</source>
        <translation>Fin</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points</source>
        <translation>Número de puntos</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min</source>
        <translation>X mín</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max</source>
        <translation>X máx</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min</source>
        <translation>Y mín</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="15"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max</source>
        <translation>Y máx</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="27"/>
        <source>Invalid function domain. Start must be less than Finish.</source>
        <translation>Dominio de la función no válido. El inicio debe ser menor que el fin.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="29"/>
        <source>Invalid graph X range. X min must be less than X max.</source>
        <translation>Intervalo X de la gráfica no válido. X mín debe ser menor que X máx.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="31"/>
        <source>Invalid graph Y range. Y min must be less than Y max.</source>
        <translation>Intervalo Y de la gráfica no válido. Y mín debe ser menor que Y máx.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="76"/>
        <source>The number of points must be from %d to %d.</source>
        <translation>El número de puntos debe estar entre %d y %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="59"/>
        <source>The width must be from %s to %s inches, the page&apos;s width.</source>
        <translation>El ancho debe estar entre %s y %s pulgadas, el ancho de la página.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="64"/>
        <source>The height must be from %s to %s inches, the page&apos;s height.</source>
        <translation>El alto debe estar entre %s y %s pulgadas, el alto de la página.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="70"/>
        <source>The number of copies must be from %d to %d.</source>
        <translation>El número de copias debe estar entre %d y %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="76"/>
        <source>%.1f x %.1f inches</source>
        <translation>%.1f por %.1f pulgadas</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="83"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="60"/>
        <source>y-axis times %s</source>
        <translation>eje y por %s</translation>
    </message>
    <message>
        <location filename="../src/core/pages/SpeechPageForm.cpp" line="27"/>
        <source>The number of decimal places must be from %d to %d.</source>
        <translation>El número de decimales debe estar entre %d y %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="32"/>
        <source>The number of tick marks must be from %d to %d.</source>
        <translation>El número de marcas de graduación debe estar entre %d y %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="36"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="78"/>
        <source>Y Threshold Level</source>
        <translation>Nivel de umbral de y</translation>
    </message>
    <message>
        <location filename="../src/core/settings/FirstStart.h" line="17"/>
        <source>Self-voicing is on; Control+Q switches it off and on again.</source>
        <translation>La voz integrada está activada; Control+Q la desactiva y la vuelve a activar.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="18"/>
        <source>The data set is empty.</source>
        <translation>El conjunto de datos está vacío.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>Last point.</source>
        <translation>Último punto.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>First point.</source>
        <translation>Primer punto.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further maximum.</source>
        <translation>No hay más máximos.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further minimum.</source>
        <translation>No hay más mínimos.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="124"/>
        <source>No further crossing of the x-axis.</source>
        <translation>No hay más cortes con el eje x.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="127"/>
        <source>No earlier crossing of the x-axis.</source>
        <translation>No hay cortes anteriores con el eje x.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="134"/>
        <source>Data set 2 is empty.</source>
        <translation>El conjunto de datos 2 está vacío.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="135"/>
        <source>Data set 1 is empty.</source>
        <translation>El conjunto de datos 1 está vacío.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="142"/>
        <source>No further crossing of the two data sets.</source>
        <translation>No hay más cortes entre los dos conjuntos de datos.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/PlayTimeLimit.cpp" line="13"/>
        <source>The play time must be from %d to %d seconds.</source>
        <translation>La duración debe estar entre %d y %d segundos.</translation>
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
        <translation>octal.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="13"/>
        <source>binary.</source>
        <translation>binario.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>degrees.</source>
        <translation>grados.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>radians.</source>
        <translation>radianes.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="15"/>
        <source>grad.</source>
        <translation>gradianes.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="9"/>
        <source>Display. </source>
        <translation>Pantalla. </translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="10"/>
        <source>inverse</source>
        <translation>inversa</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="11"/>
        <source>hyperbolic</source>
        <translation>hiperbólica</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="12"/>
        <source>right shift</source>
        <translation>desplazamiento a la derecha</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="14"/>
        <source>Hyperbolic check box: checked.</source>
        <translation>Casilla Hiperbólica: marcada.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="15"/>
        <source>Hyperbolic check box: unchecked.</source>
        <translation>Casilla Hiperbólica: no marcada.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="16"/>
        <source>Inverse check box: checked.</source>
        <translation>Casilla Inversa: marcada.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="17"/>
        <source>Inverse check box: unchecked.</source>
        <translation>Casilla Inversa: no marcada.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="23"/>
        <source>backspace</source>
        <translation>retroceso</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="41"/>
        <source>left shift</source>
        <translation>desplazamiento a la izquierda</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="45"/>
        <source>e to the x</source>
        <translation>e elevado a x</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="50"/>
        <source>x to the power y</source>
        <translation>x elevado a i griega</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="51"/>
        <source>square root</source>
        <translation>raíz cuadrada</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="52"/>
        <source>one over x</source>
        <translation>uno entre x</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="53"/>
        <source>n factorial</source>
        <translation>factorial de n</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="57"/>
        <source>plus minus</source>
        <translation>cambio de signo</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="59"/>
        <source>memory store</source>
        <translation>guardar en memoria</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="65"/>
        <source>memory plus</source>
        <translation>sumar a la memoria</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="70"/>
        <source>pie</source>
        <translation>pi</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="71"/>
        <source>memory clear</source>
        <translation>borrar memoria</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="73"/>
        <source>times</source>
        <translation>por</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="77"/>
        <source>memory recall</source>
        <translation>recuperar memoria</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="47"/>
        <source>x = %1, y = %2</source>
        <translation>x igual a %1, i griega igual a %2</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="52"/>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="67"/>
        <source>times ten to the</source>
        <translation>por diez elevado a</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="58"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="186"/>
        <location filename="../src/ui/pages/CSettingsPage.cpp" line="41"/>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="59"/>
        <source>Infinity</source>
        <translation>Infinito</translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> minus </source>
        <translation> menos </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> plus </source>
        <translation> más </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> times </source>
        <translation> por </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> divide </source>
        <translation> entre </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> begin matrix </source>
        <translation> abre matriz </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> end matrix </source>
        <translation> cierra matriz </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> column </source>
        <translation> columna </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> row </source>
        <translation> fila </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> to the power of </source>
        <translation> elevado a </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> open paren </source>
        <translation> abre paréntesis </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> close paren </source>
        <translation> cierra paréntesis </translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak everything</source>
        <translation>Decirlo todo</translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak only what the screen reader cannot</source>
        <translation>Decir solo lo que el lector de pantalla no puede</translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="18"/>
        <source>%1 (%2 to %3)</source>
        <translation>%1 (de %2 a %3)</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="166"/>
        <source>Voice %1, rate %2, pitch %3, volume %4.</source>
        <translation>Voz %1, velocidad %2, tono %3, volumen %4.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="176"/>
        <source>%1 pronounces words by the rules of voice %2; it has no user lexicon.</source>
        <translation>%1 pronuncia las palabras según las reglas de la voz %2; no tiene diccionario de usuario.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="10"/>
        <source>Self-voicing activated.</source>
        <translation>Voz integrada activada.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="12"/>
        <source>Self-voicing deactivated.</source>
        <translation>Voz integrada desactivada.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="39"/>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="43"/>
        <source>Licence: </source>
        <translation>Licencia: </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="53"/>
        <source>Libraries used: </source>
        <translation>Bibliotecas utilizadas: </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="58"/>
        <source>About Sonalyx</source>
        <translation>Acerca de Sonalyx</translation>
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
        <translation>con tecnología Sonitrace</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="73"/>
        <source>The Sonalyx is a scientific graphing </source>
        <translation>Sonalyx es una calculadora científica </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="74"/>
        <source>calculator.  It provides standard functions for computation and two </source>
        <translation>gráfica. Ofrece las funciones habituales de cálculo y la representación </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="75"/>
        <source>dimensional graphing of mathematical expressions.  The Program is </source>
        <translation>gráfica en dos dimensiones de expresiones matemáticas. El programa </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="76"/>
        <source>entirely self-voicing and provides auditory response for program navigation.</source>
        <translation>habla por sí solo en todo momento y ofrece respuesta sonora para la navegación.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="81"/>
        <source>Send comments and suggestions to:</source>
        <translation>Envíe sus comentarios y sugerencias a:</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="91"/>
        <source>This program supplied as is.  No implied or </source>
        <translation>Este programa se ofrece tal cual. No existe ninguna garantía, </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="92"/>
        <source>expressed warranty exists for the performance </source>
        <translation>expresa ni implícita, sobre el rendimiento </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="93"/>
        <source>and function of this software.</source>
        <translation>y el funcionamiento de este software.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="96"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="78"/>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="44"/>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="23"/>
        <source>button</source>
        <translation>botón</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="25"/>
        <source>check box</source>
        <translation>casilla de verificación</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="27"/>
        <source>radio button</source>
        <translation>botón de opción</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="29"/>
        <source>edit</source>
        <translation>edición</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="31"/>
        <source>combo box</source>
        <translation>cuadro combinado</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="33"/>
        <source>list</source>
        <translation>lista</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="35"/>
        <source>list item</source>
        <translation>elemento de lista</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="37"/>
        <source>tree</source>
        <translation>árbol</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="39"/>
        <source>tree item</source>
        <translation>elemento de árbol</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="41"/>
        <source>table</source>
        <translation>tabla</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="43"/>
        <source>cell</source>
        <translation>celda</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="45"/>
        <source>spin box</source>
        <translation>selector numérico</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="47"/>
        <source>slider</source>
        <translation>control deslizante</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="49"/>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="51"/>
        <source>link</source>
        <translation>enlace</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="53"/>
        <source>tab</source>
        <translation>pestaña</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="55"/>
        <source>menu item</source>
        <translation>elemento de menú</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>checked</source>
        <translation>marcado</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>not checked</source>
        <translation>no marcado</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="401"/>
        <source>&amp;Hide Graph</source>
        <translation>&amp;Ocultar gráfica</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="402"/>
        <source>&amp;Show Graph</source>
        <translation>Mo&amp;strar gráfica</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>Print Error</source>
        <translation>Error de impresión</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>No data set found - nothing to print.</source>
        <translation>No hay ningún conjunto de datos: no hay nada que imprimir.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: enabled.</source>
        <translation>Retorno automático: activado.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: disabled.</source>
        <translation>Retorno automático: desactivado.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="58"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="110"/>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="59"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="40"/>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="128"/>
        <source>. Grayed.</source>
        <translation>. No disponible.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="32"/>
        <source>&amp;Open Data Set ...</source>
        <translation>&amp;Abrir conjunto de datos ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="33"/>
        <source>&amp;Save Data Set ...</source>
        <translation>&amp;Guardar conjunto de datos ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="34"/>
        <source>&amp;Paste Data From Clipboard</source>
        <translation>&amp;Pegar datos del portapapeles</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="35"/>
        <source>&amp;Copy Data To Clipboard</source>
        <translation>&amp;Copiar datos al portapapeles</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="36"/>
        <source>&amp;Load Constants ...</source>
        <translation>Ca&amp;rgar constantes ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="37"/>
        <source>Sa&amp;ve Constants ...</source>
        <translation>G&amp;uardar constantes ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="38"/>
        <source>Res&amp;tore Default Parameters</source>
        <translation>Res&amp;taurar parámetros predeterminados</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="39"/>
        <source>P&amp;rint GraphTABCtrl+P</source>
        <translation>&amp;Imprimir gráficaTABCtrl+P</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="41"/>
        <source>&amp;Calculator</source>
        <translation>&amp;Calculadora</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="42"/>
        <source>&amp;Evaluator</source>
        <translation>&amp;Evaluador</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="43"/>
        <source>Data Set &amp;1</source>
        <translation>Conjunto de datos &amp;1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="44"/>
        <source>Data Set &amp;2</source>
        <translation>Conjunto de datos &amp;2</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="45"/>
        <source>&amp;Matrices</source>
        <translation>&amp;Matrices</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="46"/>
        <source>&amp;Source</source>
        <translation>&amp;Origen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="47"/>
        <source>&amp;Calculus</source>
        <translation>&amp;Cálculo</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="48"/>
        <source>&amp;Axes</source>
        <translation>&amp;Ejes</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="49"/>
        <source>&amp;Frame</source>
        <translation>&amp;Marco</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="50"/>
        <source>&amp;Range</source>
        <translation>&amp;Intervalo</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="51"/>
        <source>Speec&amp;h</source>
        <translation>&amp;Voz</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="52"/>
        <source>&amp;Volume</source>
        <translation>&amp;Volumen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="53"/>
        <source>&amp;Play Time</source>
        <translation>&amp;Duración</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="54"/>
        <source>&amp;Frequency Range</source>
        <translation>Intervalo de &amp;frecuencias</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="55"/>
        <source>&amp;Wave Type</source>
        <translation>Tipo de &amp;onda</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="56"/>
        <source>&amp;AutoReturn</source>
        <translation>&amp;Retorno automático</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="57"/>
        <source>Self-&amp;VoicingTABCtrl+Q, Alt+S</source>
        <translation>Voz &amp;integradaTABCtrl+Q, Alt+S</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="58"/>
        <source>&amp;LargerTABF8</source>
        <translation>&amp;AmpliarTABF8</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="59"/>
        <source>&amp;SmallerTABF7</source>
        <translation>Re&amp;ducirTABF7</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="60"/>
        <source>&amp;Evaluate Expression 1TABF4</source>
        <translation>&amp;Evaluar expresión 1TABF4</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="61"/>
        <source>&amp;Play Data SetTABF5</source>
        <translation>&amp;Reproducir conjunto de datosTABF5</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="62"/>
        <source>Play Data and &amp;TicksTABF6</source>
        <translation>Reproducir datos y &amp;marcasTABF6</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="63"/>
        <source>&amp;Write Wave File</source>
        <translation>&amp;Guardar archivo WAV</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="64"/>
        <source>Find &amp;IntersectionTABAlt+I</source>
        <translation>Buscar &amp;intersecciónTABAlt+I</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="65"/>
        <source>Find &amp;ZerosTABAlt+0</source>
        <translation>Buscar &amp;cerosTABAlt+0</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="66"/>
        <source>&amp;Show GraphTABF3</source>
        <translation>Mo&amp;strar gráficaTABF3</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="68"/>
        <source>&amp;User ManualTABF1</source>
        <translation>&amp;Manual de usuarioTABF1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="69"/>
        <source>&amp;Calculator Hotkeys</source>
        <translation>Teclas rápidas de la &amp;calculadora</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="70"/>
        <source>&amp;Graphing Hotkeys</source>
        <translation>Teclas rápidas de la &amp;gráfica</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="71"/>
        <source>&amp;Navigational Hotkeys</source>
        <translation>Teclas rápidas de &amp;navegación</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="79"/>
        <source>&amp;Online Help</source>
        <translation>Ayuda en &amp;línea</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="80"/>
        <source>&amp;About the Sonalyx ...</source>
        <translation>&amp;Acerca de Sonalyx ...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="124"/>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="130"/>
        <source>&amp;Plot</source>
        <translation>&amp;Trazado</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="138"/>
        <source>&amp;Wave</source>
        <translation>&amp;Sonido</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="151"/>
        <source>&amp;Graph</source>
        <translation>&amp;Gráfica</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="161"/>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="38"/>
        <source>Open Data Set</source>
        <translation>Abrir conjunto de datos</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="63"/>
        <source>Save Data Set</source>
        <translation>Guardar conjunto de datos</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="72"/>
        <source>Saved %1 points as %2.</source>
        <translation>Se han guardado %1 puntos en %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="82"/>
        <source>%1 points copied to the clipboard.</source>
        <translation>%1 puntos copiados al portapapeles.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="26"/>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="28"/>
        <source>Left</source>
        <translation>Flecha izquierda</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="30"/>
        <source>Right</source>
        <translation>Flecha derecha</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="32"/>
        <source>Up</source>
        <translation>Flecha arriba</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="34"/>
        <source>Down</source>
        <translation>Flecha abajo</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="36"/>
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="38"/>
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="40"/>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="42"/>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="44"/>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="46"/>
        <source>Space</source>
        <translation>Espacio</translation>
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
        <translation>Mayús</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="130"/>
        <source>Stops the sound of the graph.</source>
        <translation>Detiene el sonido de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="132"/>
        <source>Steps to the next point of the graph and says it.</source>
        <translation>Avanza al punto siguiente de la gráfica y lo dice.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="134"/>
        <source>Steps to the previous point of the graph and says it.</source>
        <translation>Retrocede al punto anterior de la gráfica y lo dice.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="136"/>
        <source>Steps to the next maximum of the graph.</source>
        <translation>Avanza al máximo siguiente de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="138"/>
        <source>Steps to the next minimum of the graph.</source>
        <translation>Avanza al mínimo siguiente de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="140"/>
        <source>Goes to the first point of the graph.</source>
        <translation>Va al primer punto de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="142"/>
        <source>Goes to the last point of the graph.</source>
        <translation>Va al último punto de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="144"/>
        <source>On the Matrix page: copies the matrix as a picture and as text.</source>
        <translation>En la página Matriz: copia la matriz como imagen y como texto.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="146"/>
        <source>Steps back to the previous place where the graph crosses the x-axis.</source>
        <translation>Retrocede al lugar anterior donde la gráfica corta el eje x.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="156"/>
        <source>Says the display.</source>
        <translation>Dice la pantalla.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="158"/>
        <source>Says the memory.</source>
        <translation>Dice la memoria.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="160"/>
        <source>Ticks or clears Hyperbolic.</source>
        <translation>Marca o desmarca Hiperbólica.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="162"/>
        <source>Ticks or clears Inverse.</source>
        <translation>Marca o desmarca Inversa.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="164"/>
        <source>Right shift.</source>
        <translation>Desplazamiento a la derecha.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="166"/>
        <source>Recalls the memory.</source>
        <translation>Recupera la memoria.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="174"/>
        <source>Goes to the next tab of the control panel.</source>
        <translation>Va a la pestaña siguiente del panel de control.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="175"/>
        <source>Goes to the previous tab of the control panel.</source>
        <translation>Va a la pestaña anterior del panel de control.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="176"/>
        <source>Goes to the next control of the page.</source>
        <translation>Va al control siguiente de la página.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="177"/>
        <source>Goes to the previous control of the page.</source>
        <translation>Va al control anterior de la página.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="178"/>
        <source>On the tabs: goes to the tab beside.</source>
        <translation>En las pestañas: va a la pestaña de al lado.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="180"/>
        <source>In a group of choices: chooses the one above or below; in a list: the item above or below.</source>
        <translation>En un grupo de opciones: elige la de arriba o la de abajo; en una lista: el elemento de arriba o de abajo.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="181"/>
        <source>Presses the button, or ticks or clears the box, that has the focus.</source>
        <translation>Pulsa el botón, o marca o desmarca la casilla, que tiene el foco.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="183"/>
        <source>On a slider: moves it by one, by a page, or to an end.</source>
        <translation>En un control deslizante: lo mueve un paso, una página o hasta un extremo.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="184"/>
        <source>Opens the menu bar.</source>
        <translation>Abre la barra de menús.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="185"/>
        <source>Closes a menu or a dialog.</source>
        <translation>Cierra un menú o un cuadro de diálogo.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="237"/>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source> or </source>
        <translation> o </translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="260"/>
        <source>On the Evaluator and Matrix pages: evaluates the expression, or stores name = expression.</source>
        <translation>En las páginas Evaluador y Matriz: evalúa la expresión o guarda nombre = expresión.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="261"/>
        <source>On the Evaluator and Matrix pages: brings earlier entries back.</source>
        <translation>En las páginas Evaluador y Matriz: recupera las entradas anteriores.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="262"/>
        <source>On the Data pages, in f(x): fills the table with f(x) over the function&apos;s domain.</source>
        <translation>En las páginas de datos, en f(x): llena la tabla con f(x) en el dominio de la función.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="263"/>
        <source>On the Data pages: undoes a paste or a load of the data set.</source>
        <translation>En las páginas de datos: deshace un pegado o una carga del conjunto de datos.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="288"/>
        <source>Moving around the program</source>
        <translation>Moverse por el programa</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="289"/>
        <source>Hot keys</source>
        <translation>Teclas rápidas</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="290"/>
        <source>The graph and its sound</source>
        <translation>La gráfica y su sonido</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="306"/>
        <source>The menus</source>
        <translation>Los menús</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="307"/>
        <source>The Calculator page</source>
        <translation>La página Calculadora</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="308"/>
        <source>The Evaluator, Matrix and Data pages</source>
        <translation>Las páginas Evaluador, Matriz y Datos</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="313"/>
        <location filename="../src/ui/app/KeyList.cpp" line="323"/>
        <source>Sonalyx keys</source>
        <translation>Teclas de Sonalyx</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="314"/>
        <source>Navigational hotkeys</source>
        <translation>Teclas rápidas de navegación</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="315"/>
        <source>Graphing hotkeys</source>
        <translation>Teclas rápidas de la gráfica</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="316"/>
        <source>Calculator hotkeys</source>
        <translation>Teclas rápidas de la calculadora</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="336"/>
        <source>This list is made from the program&apos;s own tables of keys.</source>
        <translation>Esta lista se genera a partir de las propias tablas de teclas del programa.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="337"/>
        <source>Back to the manual</source>
        <translation>Volver al manual</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>What they do</source>
        <translation>Qué hacen</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="21"/>
        <location filename="../src/ui/app/ProductInfo.h" line="31"/>
        <source>GNU General Public License, version 3 or later</source>
        <translation>Licencia Pública General de GNU, versión 3 o posterior</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="30"/>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>Licencia Pública General Reducida de GNU, versión 3</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="32"/>
        <location filename="../src/ui/app/ProductInfo.h" line="34"/>
        <location filename="../src/ui/app/ProductInfo.h" line="35"/>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>Licencia Pública General Reducida de GNU, versión 2.1 o posterior</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="33"/>
        <source>zlib License</source>
        <translation>Licencia zlib</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="36"/>
        <source>Mozilla Public License, version 2.0</source>
        <translation>Licencia Pública de Mozilla, versión 2.0</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="37"/>
        <source>GNU General Public License, version 2</source>
        <translation>Licencia Pública General de GNU, versión 2</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="44"/>
        <source>Button. </source>
        <translation>Botón. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="47"/>
        <source>Check box. </source>
        <translation>Casilla de verificación. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="50"/>
        <source>Radio button. </source>
        <translation>Botón de opción. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="57"/>
        <source> Checked.</source>
        <translation> Marcado.</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <source> Unchecked.</source>
        <translation> No marcado.</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSEdit.cpp" line="42"/>
        <source>Backspace. </source>
        <translation>Retroceso. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSListBox.cpp" line="22"/>
        <source>Blank line</source>
        <translation>Línea en blanco</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSStatic.cpp" line="21"/>
        <source>Label. </source>
        <translation>Etiqueta. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSTabCtrl.cpp" line="18"/>
        <source>screen.</source>
        <translation>pantalla.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="78"/>
        <source>SLX - Data Plot Print Setup</source>
        <translation>SLX - Configuración de impresión de la gráfica</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="84"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="94"/>
        <source>Printer:</source>
        <translation>Impresora:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="88"/>
        <source>No printer installed</source>
        <translation>No hay ninguna impresora instalada</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="89"/>
        <source>With no printer, Print saves the graph as a PDF file.</source>
        <translation>Sin impresora, Imprimir guarda la gráfica como archivo PDF.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="95"/>
        <source>Print to file</source>
        <translation>Imprimir en un archivo</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="96"/>
        <source>Saves the page as a PDF file instead of printing it.</source>
        <translation>Guarda la página como archivo PDF en lugar de imprimirla.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="103"/>
        <source>File name:</source>
        <translation>Nombre del archivo:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <source>File name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="100"/>
        <source>The PDF file the page is saved in.</source>
        <translation>El archivo PDF en el que se guarda la página.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="115"/>
        <source>Font:</source>
        <translation>Fuente:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="113"/>
        <source>Font size:</source>
        <translation>Tamaño de fuente:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <source>Font size</source>
        <translation>Tamaño de fuente</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="117"/>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="131"/>
        <source>Width:</source>
        <translation>Ancho:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="120"/>
        <source>The graph&apos;s width on paper, in inches.</source>
        <translation>El ancho de la gráfica en el papel, en pulgadas.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="132"/>
        <source>Height:</source>
        <translation>Alto:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="123"/>
        <source>The graph&apos;s height on paper, in inches.</source>
        <translation>El alto de la gráfica en el papel, en pulgadas.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="125"/>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="126"/>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="136"/>
        <source>Paper size:</source>
        <translation>Tamaño del papel:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <source>Paper size</source>
        <translation>Tamaño del papel</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="139"/>
        <source>Number of copies:</source>
        <translation>Número de copias:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <source>Number of copies</source>
        <translation>Número de copias</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="143"/>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="141"/>
        <source>Printed above the graph.</source>
        <translation>Se imprime encima de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="145"/>
        <source>Data Style</source>
        <translation>Estilo de los datos</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw Data Points</source>
        <translation>Dibujar los puntos</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw line through points</source>
        <translation>Dibujar una línea que une los puntos</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="148"/>
        <source>Draw both line and data points</source>
        <translation>Dibujar la línea y los puntos</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="156"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="122"/>
        <source>Axes</source>
        <translation>Ejes</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="158"/>
        <source>Show X-Axis</source>
        <translation>Mostrar el eje X</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="159"/>
        <source>Show Y-Axis</source>
        <translation>Mostrar el eje Y</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="164"/>
        <source>Axis Labels</source>
        <translation>Etiquetas de los ejes</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="166"/>
        <source>X Labels</source>
        <translation>Etiquetas del eje X</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="167"/>
        <source>Y Labels</source>
        <translation>Etiquetas del eje Y</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="172"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="58"/>
        <source>Tick Marks</source>
        <translation>Marcas de graduación</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>No Tick Marks</source>
        <translation>Sin marcas de graduación</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>Grid Lines</source>
        <translation>Líneas de cuadrícula</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="182"/>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="190"/>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="191"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="79"/>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="45"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="240"/>
        <source>No printer is installed: the graph can only be saved as a PDF file.</source>
        <translation>No hay ninguna impresora instalada: la gráfica solo se puede guardar como archivo PDF.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="380"/>
        <source>Type the name of the PDF file to save the graph in.</source>
        <translation>Escriba el nombre del archivo PDF en el que guardar la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="400"/>
        <source>The graph could not be printed on %s.</source>
        <translation>No se ha podido imprimir la gráfica en %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="403"/>
        <source>The graph is printed on %s.</source>
        <translation>La gráfica se ha impreso en %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="404"/>
        <source>The graph is saved in %s.</source>
        <translation>La gráfica se ha guardado en %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="426"/>
        <source>No printer is installed: Print saves the graph as a PDF file.</source>
        <translation>No hay ninguna impresora instalada: Imprimir guarda la gráfica como archivo PDF.</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="74"/>
        <source>Write Wave File</source>
        <translation>Guardar archivo WAV</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="94"/>
        <source>Wave file written: %s.</source>
        <translation>Archivo WAV guardado: %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="32"/>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="84"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="26"/>
        <source>Graph</source>
        <translation>Gráfica</translation>
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
        <translation>Punto:</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="60"/>
        <source>Data Set 1</source>
        <translation>Conjunto de datos 1</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="61"/>
        <source>Data Set 2</source>
        <translation>Conjunto de datos 2</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="53"/>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="77"/>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
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
        <translation>Mensaje</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="78"/>
        <source>Coordinates</source>
        <translation>Coordenadas</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="80"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="82"/>
        <source>Rectangle</source>
        <translation>Rectangulares</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="81"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="83"/>
        <source>Polar</source>
        <translation>Polares</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 1 table</source>
        <translation>Tabla del conjunto de datos 1</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 2 table</source>
        <translation>Tabla del conjunto de datos 2</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="103"/>
        <source>Statistical Description of Data Set</source>
        <translation>Descripción estadística del conjunto de datos</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="106"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="108"/>
        <source>Mode:</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="118"/>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="46"/>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="120"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="121"/>
        <source>Plot Fitted Curve</source>
        <translation>Representar la curva ajustada</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="130"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Evaluate Statistics</source>
        <translation>Calcular estadísticas</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="135"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="136"/>
        <source>Plot Data Set 2</source>
        <translation>Representar el conjunto de datos 2</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="250"/>
        <source>Empty Data Set</source>
        <translation>Conjunto de datos vacío</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="251"/>
        <source>No data plotted -- nothing to calculate.</source>
        <translation>No hay datos representados: no hay nada que calcular.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Return to Data Table</source>
        <translation>Volver a la tabla de datos</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="273"/>
        <source>Sinusoidal Fit Parameters</source>
        <translation>Parámetros del ajuste sinusoidal</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="274"/>
        <source>Period: </source>
        <translation>Periodo: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="276"/>
        <source>Set</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="277"/>
        <source>Use Default</source>
        <translation>Usar el predeterminado</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="291"/>
        <source>A fit needs at least two points.</source>
        <translation>Un ajuste necesita al menos dos puntos.</translation>
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
        <translation>Tendencia</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="63"/>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="117"/>
        <source>new point</source>
        <translation>punto nuevo</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="64"/>
        <source>blank</source>
        <translation>vacía</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="70"/>
        <source>New point.</source>
        <translation>Punto nuevo.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="71"/>
        <source>Row %1: </source>
        <translation>Fila %1: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataTableView.cpp" line="46"/>
        <source>Empty.</source>
        <translation>Vacía.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source>Keyboard: </source>
        <translation>Teclado: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="127"/>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="128"/>
        <source>Ctrl+B says the display again, Ctrl+T the memory.</source>
        <translation>Control+B vuelve a decir la pantalla; Control+T, la memoria.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="142"/>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="143"/>
        <source>Shows M while the memory holds a value.</source>
        <translation>Muestra M mientras la memoria guarda un valor.</translation>
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
        <translation>Oct</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Bin</source>
        <translation>Bin</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="153"/>
        <source>Number base</source>
        <translation>Base numérica</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="153"/>
        <source>Hexadecimal, decimal, octal or binary</source>
        <translation>Hexadecimal, decimal, octal o binaria</translation>
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
        <translation>Gra</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Angle unit</source>
        <translation>Unidad de ángulo</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Degrees, radians or grad</source>
        <translation>Grados, radianes o gradianes</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="179"/>
        <source>Inv</source>
        <translation>Inv</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="181"/>
        <source>Hyp</source>
        <translation>Hip</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="320"/>
        <source>Memory is empty.</source>
        <translation>La memoria está vacía.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="324"/>
        <source>Memory: </source>
        <translation>Memoria: </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="30"/>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="32"/>
        <source>Enter evaluates it or stores name = expression; Up and Down bring earlier entries back.</source>
        <translation>Intro la evalúa o guarda nombre = expresión; Flecha arriba y Flecha abajo recuperan las entradas anteriores.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="33"/>
        <source>Expression:</source>
        <translation>Expresión:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="39"/>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="40"/>
        <source>The result of the last entry.</source>
        <translation>El resultado de la última entrada.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="41"/>
        <source>Result:</source>
        <translation>Resultado:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="47"/>
        <source>Every entry with its result, the newest first.</source>
        <translation>Cada entrada con su resultado, la más reciente primero.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="37"/>
        <source>Matrix expression</source>
        <translation>Expresión matricial</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="38"/>
        <source>Enter evaluates it or stores NAME = expression; ANS is the last result; Up and Down bring earlier entries back.</source>
        <translation>Intro la evalúa o guarda NOMBRE = expresión; ANS es el último resultado; Flecha arriba y Flecha abajo recuperan las entradas anteriores.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="89"/>
        <source>Matrix copied to the clipboard.</source>
        <translation>Matriz copiada al portapapeles.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="90"/>
        <source>There is no matrix to copy.</source>
        <translation>No hay ninguna matriz que copiar.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="54"/>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="161"/>
        <source>Matrix display</source>
        <translation>Visor de la matriz</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="56"/>
        <source>The last result, typeset; its context menu copies it to the clipboard.</source>
        <translation>El último resultado, con formato matemático; su menú contextual lo copia al portapapeles.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="191"/>
        <source>Copy To Clipboard</source>
        <translation>Copiar al portapapeles</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start:</source>
        <translation>Inicio:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Where f(x) is first sampled.</source>
        <translation>Donde se toma la primera muestra de f(x).</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="35"/>
        <source>Finish:</source>
        <translation>Fin:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="36"/>
        <source>Where f(x) is last sampled; above Start.</source>
        <translation>Donde se toma la última muestra de f(x); mayor que el inicio.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source># Pts:</source>
        <translation>Núm. de puntos:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="38"/>
        <source>How many points f(x) is sampled at.</source>
        <translation>En cuántos puntos se muestrea f(x).</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min:</source>
        <translation>X mín:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>The left end of the graph.</source>
        <translation>El extremo izquierdo de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max:</source>
        <translation>X máx:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>The right end of the graph.</source>
        <translation>El extremo derecho de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min:</source>
        <translation>Y mín:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>The bottom of the graph.</source>
        <translation>La parte inferior de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max:</source>
        <translation>Y máx:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>The top of the graph.</source>
        <translation>La parte superior de la gráfica.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="57"/>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="62"/>
        <source>Sum (1+2)</source>
        <translation>Suma (1+2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1-2)</source>
        <translation>Diferencia (1-2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1 minus 2)</source>
        <translation>Diferencia (1 menos 2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="72"/>
        <source>Calculus Plot</source>
        <translation>Gráfica de cálculo</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="74"/>
        <source>Function</source>
        <translation>Función</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="74"/>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="75"/>
        <source>Derivative</source>
        <translation>Derivada</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="94"/>
        <source>Function Domain</source>
        <translation>Dominio de la función</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="99"/>
        <source>Graph Range</source>
        <translation>Intervalo de la gráfica</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="104"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="109"/>
        <source>Auto-Scale</source>
        <translation>Escala automática</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="105"/>
        <source>X Auto-Scale</source>
        <translation>Escala automática en X</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="110"/>
        <source>Y Auto-Scale</source>
        <translation>Escala automática en Y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="113"/>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="116"/>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="118"/>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="120"/>
        <source>Error Bars</source>
        <translation>Barras de error</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="125"/>
        <source>Show X-axis</source>
        <translation>Mostrar el eje X</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="128"/>
        <source>Show Y-axis</source>
        <translation>Mostrar el eje Y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="129"/>
        <source>Display X labels</source>
        <translation>Mostrar las etiquetas de X</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="131"/>
        <source>Display Y labels</source>
        <translation>Mostrar las etiquetas de Y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="134"/>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>No ticks or grid.</source>
        <translation>Sin marcas ni cuadrícula.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Tick</source>
        <translation>Marcas</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="46"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="161"/>
        <source>Lexicon</source>
        <translation>Léxico</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="51"/>
        <source>Pronunciations</source>
        <translation>Pronunciaciones</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="52"/>
        <source>Each word and how the voice says it.</source>
        <translation>Cada palabra y cómo la dice la voz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="53"/>
        <source>Pronunciations:</source>
        <translation>Pronunciaciones:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="57"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="63"/>
        <source>Word:</source>
        <translation>Palabra:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="58"/>
        <source>The word as the program writes it.</source>
        <translation>La palabra tal como la escribe el programa.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="60"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="64"/>
        <source>Say as:</source>
        <translation>Decir como:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="61"/>
        <source>How the voice is to say it.</source>
        <translation>Cómo debe decirla la voz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Puts the word and how to say it in the list.</source>
        <translation>Pone en la lista la palabra y cómo decirla.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Takes the chosen word out of the list.</source>
        <translation>Quita de la lista la palabra elegida.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="112"/>
        <source>Type a word first.</source>
        <translation>Escriba primero una palabra.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="121"/>
        <source>Added %1, said as %2.</source>
        <translation>Se ha añadido %1, que se dice %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="127"/>
        <source>The list is empty.</source>
        <translation>La lista está vacía.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="133"/>
        <source>Removed %1.</source>
        <translation>Se ha quitado %1.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="23"/>
        <source>eSpeak NG</source>
        <translation>eSpeak NG</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="24"/>
        <source>System speech service</source>
        <translation>Servicio de voz del sistema</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="30"/>
        <source>Speech engine</source>
        <translation>Motor de voz</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="32"/>
        <source>Speak with:</source>
        <translation>Hablar con:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="46"/>
        <source>No speech engine is running.</source>
        <translation>No hay ningún motor de voz en marcha.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="47"/>
        <source>Speech engine: %1. Voice: %2.</source>
        <translation>Motor de voz: %1. Voz: %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="54"/>
        <source>About TTS. This button tells the name, version and voice of your speech engine.</source>
        <translation>Acerca de TTS. Este botón dice el nombre, la versión y la voz de su motor de voz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="56"/>
        <source>General. This button chooses the speech engine: eSpeak NG or the system&apos;s speech service.</source>
        <translation>General. Este botón elige el motor de voz: eSpeak NG o el servicio de voz del sistema.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="57"/>
        <source>Translate. This button only says what it is for: Sonalyx speaks in the language of your desktop, so choose a voice of that language in the list of voices.</source>
        <translation>Traducir. Este botón solo dice para qué sirve: Sonalyx habla en el idioma de su escritorio, así que elija una voz de ese idioma en la lista de voces.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="61"/>
        <source>Lexicon. This button opens the pronunciation list: words and how the voice says them.</source>
        <translation>Léxico. Este botón abre la lista de pronunciaciones: las palabras y cómo las dice la voz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="68"/>
        <source>Numbers</source>
        <translation>Números</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="74"/>
        <source>Number of decimal places to voice:</source>
        <translation>Número de decimales que se dicen:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <source>Number of decimal places to voice</source>
        <translation>Número de decimales que se dicen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="72"/>
        <source>How many decimal places spoken numbers keep, from 0 to 15.</source>
        <translation>Cuántos decimales conservan los números hablados, de 0 a 15.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="85"/>
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="89"/>
        <source>Voices</source>
        <translation>Voces</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="90"/>
        <source>The voices of the speech engine; the chosen one speaks.</source>
        <translation>Las voces del motor de voz; habla la elegida.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="92"/>
        <source>Voices:</source>
        <translation>Voces:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>Rate</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>How fast the voice speaks.</source>
        <translation>Lo rápido que habla la voz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>Pitch</source>
        <translation>Tono</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>How high the voice speaks.</source>
        <translation>Lo aguda que suena la voz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="52"/>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <source>How loud the voice speaks.</source>
        <translation>Lo fuerte que suena la voz.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="109"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>percent.</source>
        <translation>por ciento.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="121"/>
        <source>Self-Voicing</source>
        <translation>Voz integrada</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="123"/>
        <source>Sound Effects</source>
        <translation>Efectos de sonido</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="125"/>
        <source>Allow Self-Voicing</source>
        <translation>Permitir la voz integrada</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="128"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="135"/>
        <source>Beside a screen reader:</source>
        <translation>Junto a un lector de pantalla:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="129"/>
        <source>What self-voicing says while a screen reader runs: everything, or only what the screen reader cannot know.</source>
        <translation>Lo que dice la voz integrada mientras funciona un lector de pantalla: todo, o solo lo que el lector de pantalla no puede saber.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: checked.</source>
        <translation>Permitir efectos de sonido: marcado.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: unchecked.</source>
        <translation>Permitir efectos de sonido: no marcado.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="156"/>
        <source>Speech Engine</source>
        <translation>Motor de voz</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="158"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="252"/>
        <source>About TTS</source>
        <translation>Acerca de TTS</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="159"/>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="160"/>
        <source>Translate</source>
        <translation>Traducir</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="268"/>
        <source>SONALYX_SPEECH chooses the engine of this run; %1 speaks from the next start without it.</source>
        <translation>SONALYX_SPEECH elige el motor de esta sesión; %1 hablará a partir del próximo inicio sin esa variable.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="270"/>
        <source>%1 speaks now.</source>
        <translation>%1 habla ahora.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="273"/>
        <source>%1 cannot start here; the voice stays as it was.</source>
        <translation>%1 no puede iniciarse aquí; la voz sigue como estaba.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="40"/>
        <source>Play Time (%d sec.)</source>
        <translation>Duración (%d segundos)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set:</source>
        <translation>Conjunto de datos:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set volume:</source>
        <translation>Volumen del conjunto de datos:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="55"/>
        <source>How loud the curve plays.</source>
        <translation>Lo fuerte que suena la curva.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="57"/>
        <source>Tick Marks:</source>
        <translation>Marcas de graduación:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>Tick volume:</source>
        <translation>Volumen de las marcas:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="63"/>
        <source>How loud the tick marks click.</source>
        <translation>Lo fuerte que suenan los clics de las marcas de graduación.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="70"/>
        <source># of vertical tick marks:</source>
        <translation>Núm. de marcas verticales:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <source>Number of vertical tick marks</source>
        <translation>Número de marcas verticales</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="68"/>
        <source>How many tick marks a sweep passes, from 5 to 15.</source>
        <translation>Cuántas marcas se pasan en un barrido, de 5 a 15.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="75"/>
        <source>Y Threshold</source>
        <translation>Umbral de y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="77"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y Threshold Level:</source>
        <translation>Nivel de umbral de y:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y threshold level</source>
        <translation>Nivel de umbral de y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="81"/>
        <source>Below this y the tone turns buzzier, so you hear where the curve passes it.</source>
        <translation>Por debajo de este valor de y el tono se vuelve más áspero, para que oiga dónde lo cruza la curva.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>Play time:</source>
        <translation>Duración:</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>seconds.</source>
        <translation>segundos.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="90"/>
        <source>How long the whole curve plays.</source>
        <translation>Cuánto dura la reproducción de toda la curva.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="109"/>
        <source>Wave Type</source>
        <translation>Tipo de onda</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="111"/>
        <source>Mono output</source>
        <translation>Salida mono</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="112"/>
        <source>Stereo output</source>
        <translation>Salida estéreo</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="121"/>
        <source>Frequency Range</source>
        <translation>Intervalo de frecuencias</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Minimum</source>
        <translation>Mínima</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Frequency minimum</source>
        <translation>Frecuencia mínima</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>hertz.</source>
        <translation>hercios.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="124"/>
        <source>The pitch of the lowest y.</source>
        <translation>El tono del valor de y más bajo.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Maximum</source>
        <translation>Máxima</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Frequency maximum</source>
        <translation>Frecuencia máxima</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="127"/>
        <source>The pitch of the highest y.</source>
        <translation>El tono del valor de y más alto.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="134"/>
        <source>Auto-speak Coordinates</source>
        <translation>Coordenadas habladas</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="136"/>
        <source>Speak X and Y values at each step</source>
        <translation>Decir los valores de X e Y en cada paso</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Plot</source>
        <translation>Trazado</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Wave</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Speech</source>
        <translation>Voz</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Calculator</source>
        <translation>Calculadora</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 1</source>
        <translation>Datos 1</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 2</source>
        <translation>Datos 2</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Evaluator</source>
        <translation>Evaluador</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Matrix</source>
        <translation>Matriz</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="60"/>
        <source>Control panel</source>
        <translation>Panel de control</translation>
    </message>
</context>
</TS>
