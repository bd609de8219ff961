<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
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
        <translation>moins</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="20"/>
        <source>Cannot divide by zero</source>
        <translation>Division par zéro impossible</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="21"/>
        <source>Result is undefined</source>
        <translation>Résultat indéfini</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="22"/>
        <source>Invalid input</source>
        <translation>Entrée non valide</translation>
    </message>
    <message>
        <location filename="../src/core/engines/CCalcEngine.cpp" line="23"/>
        <source>Overflow</source>
        <translation>Dépassement de capacité</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="14"/>
        <source>The expression is empty.</source>
        <translation>L&apos;expression est vide.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="16"/>
        <source>The expression ends too early.</source>
        <translation>L&apos;expression se termine trop tôt.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="18"/>
        <source>Missing closing bracket.</source>
        <translation>Il manque une parenthèse fermante.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="20"/>
        <source>Unknown name %s.</source>
        <translation>Nom inconnu : %s.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="22"/>
        <source>%s needs its argument in brackets.</source>
        <translation>Il faut mettre l&apos;argument de %s entre parenthèses.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="24"/>
        <source>Unexpected &quot;%s&quot;.</source>
        <translation>« %s » n&apos;est pas attendu ici.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="26"/>
        <source>The expression is nested too deeply.</source>
        <translation>L&apos;expression a trop de niveaux imbriqués.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="28"/>
        <source>Write a * between a number and x.</source>
        <translation>Écrivez un * entre un nombre et x.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="30"/>
        <source>The expression is longer than %s characters.</source>
        <translation>L&apos;expression dépasse %s caractères.</translation>
    </message>
    <message>
        <location filename="../src/core/engines/EvaluationError.cpp" line="44"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="136"/>
        <location filename="../src/core/pages/DataPageSession.cpp" line="76"/>
        <location filename="../src/core/pages/EvaluatorSession.h" line="44"/>
        <source>Invalid entry.</source>
        <translation>Saisie non valide.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetFile.h" line="23"/>
        <source>SLX Data Files (*.set)</source>
        <translation>Fichiers de données SLX (*.set)</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="19"/>
        <source>No points were found.</source>
        <translation>Aucun point n&apos;a été trouvé.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="21"/>
        <source>A data set holds at most %d points.</source>
        <translation>Une série de données contient au plus %d points.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="25"/>
        <source>The text is too large for a data set of at most %d points.</source>
        <translation>Le texte est trop long pour une série de données d&apos;au plus %d points.</translation>
    </message>
    <message>
        <location filename="../src/core/files/DataSetTextError.cpp" line="30"/>
        <source>Line %d does not hold two numbers.</source>
        <translation>La ligne %d ne contient pas deux nombres.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="11"/>
        <source>No error occurred.</source>
        <translation>Aucune erreur ne s&apos;est produite.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="12"/>
        <source>An unspecified error occurred.</source>
        <translation>Une erreur non précisée s&apos;est produite.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="13"/>
        <source>The file could not be located.</source>
        <translation>Le fichier est introuvable.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="14"/>
        <source>All or part of the path is invalid.</source>
        <translation>Tout ou partie du chemin n&apos;est pas valide.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="15"/>
        <source>The permitted number of open files was exceeded.</source>
        <translation>Le nombre maximal de fichiers ouverts a été dépassé.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="16"/>
        <source>The file could not be accessed.</source>
        <translation>Impossible d&apos;accéder au fichier.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="17"/>
        <source>There was an attempt to use an invalid file handle.</source>
        <translation>Tentative d&apos;utilisation d&apos;un descripteur de fichier non valide.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="18"/>
        <source>The current working directory cannot be removed.</source>
        <translation>Le répertoire de travail actuel ne peut pas être supprimé.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="19"/>
        <source>There are no more directory entries.</source>
        <translation>Il n&apos;y a plus d&apos;entrées dans le répertoire.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="20"/>
        <source>There was an error trying to set the file pointer.</source>
        <translation>Erreur lors du positionnement dans le fichier.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="21"/>
        <source>There was a hardware error.</source>
        <translation>Une erreur matérielle s&apos;est produite.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="22"/>
        <source>SHARE.EXE was not loaded, or a shared region was locked.</source>
        <translation>SHARE.EXE n&apos;a pas été chargé, ou une zone partagée était verrouillée.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="23"/>
        <source>There was an attempt to lock a region that was already locked.</source>
        <translation>Tentative de verrouillage d&apos;une zone déjà verrouillée.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="24"/>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.cpp" line="25"/>
        <source>The end of file was reached.</source>
        <translation>La fin du fichier a été atteinte.</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="11"/>
        <source>File Open Error</source>
        <translation>Erreur d&apos;ouverture de fichier</translation>
    </message>
    <message>
        <location filename="../src/core/files/FileError.h" line="12"/>
        <source>File Save Error</source>
        <translation>Erreur d&apos;enregistrement de fichier</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="9"/>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="59"/>
        <source>No data set found - nothing to save.</source>
        <translation>Aucune série de données trouvée : rien à enregistrer.</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="10"/>
        <source>Wave File Error</source>
        <translation>Erreur de fichier son</translation>
    </message>
    <message>
        <location filename="../src/core/files/WaveExport.h" line="11"/>
        <source>Wave Files (*.wav)</source>
        <translation>Fichiers son (*.wav)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="17"/>
        <source>Basic Statistical Information</source>
        <translation>Statistiques descriptives</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="18"/>
        <source>Linear: y = a + bx</source>
        <translation>Linéaire : y = a + bx</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="19"/>
        <source>Quadratic: y = ax^2 + bx + c</source>
        <translation>Polynôme de degré 2 : y = ax^2 + bx + c</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="20"/>
        <source>Cubic: y = ax^3 + bx^2 + cx + d</source>
        <translation>Polynôme de degré 3 : y = ax^3 + bx^2 + cx + d</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="21"/>
        <source>Quartic: y = ax^4 + bx^3 + cx^2 + dx + e</source>
        <translation>Polynôme de degré 4 : y = ax^4 + bx^3 + cx^2 + dx + e</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="22"/>
        <source>Exponential: y = a b^x</source>
        <translation>Exponentielle : y = a b^x</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="23"/>
        <source>Logarithmic: y = a + b*ln(x)</source>
        <translation>Logarithmique : y = a + b*ln(x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="24"/>
        <source>Power: y = a x^b</source>
        <translation>Puissance : y = a x^b</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="25"/>
        <source>Hyperbolic: y = a + b/x</source>
        <translation>Hyperbolique : y = a + b/x</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="26"/>
        <source>Rational: y = a / (b + x)</source>
        <translation>Rationnelle : y = a / (b + x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="27"/>
        <source>Rational: y = ax / (b + x)</source>
        <translation>Rationnelle : y = ax / (b + x)</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="28"/>
        <source>Logistic: y = c / (1 + a*exp(-b*x))</source>
        <translation>Logistique : y = c / (1 + a*exp(-b*x))</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitModel.cpp" line="29"/>
        <source>Sinusoidal: y = a sin(bx+c) + d</source>
        <translation>Sinusoïdale : y = a sin(bx+c) + d</translation>
    </message>
    <message>
        <location filename="../src/core/math/FitText.cpp" line="19"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source>Number of points:</source>
        <translation>Nombre de points :</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="146"/>
        <source>Start must be below finish.</source>
        <translation>Le début doit être inférieur à la fin.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="150"/>
        <source>At least 2 points are needed.</source>
        <translation>Il faut au moins 2 points.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="154"/>
        <source>At most %d points can be sampled.</source>
        <translation>On peut échantillonner au plus %d points.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="167"/>
        <source>Point allocation error.</source>
        <translation>Erreur d&apos;allocation des points.</translation>
    </message>
    <message>
        <location filename="../src/core/math/FunctionSampler.cpp" line="180"/>
        <location filename="../src/core/math/FunctionSampler.cpp" line="196"/>
        <source>Range error: Check plot settings.</source>
        <translation>Erreur de fenêtre : vérifiez les réglages du tracé.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="27"/>
        <source>These points cannot be fitted by this model.</source>
        <translation>Ce modèle ne peut pas être ajusté à ces points.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="37"/>
        <source>Regression analysis:</source>
        <translation>Analyse de régression :</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="56"/>
        <source>All x values are equal: no line can be fitted.</source>
        <translation>Toutes les valeurs de x sont égales : aucune droite ne peut être ajustée.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="79"/>
        <source>undefined</source>
        <translation>indéfini</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="91"/>
        <source>Not enough points for fit.</source>
        <translation>Pas assez de points pour l&apos;ajustement.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="96"/>
        <source>Invalid data set for polynomial fit.</source>
        <translation>Série de données non valide pour un ajustement polynomial.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="168"/>
        <source>Invalid data set.  Y values must be &gt; 0.</source>
        <translation>Série de données non valide. Les ordonnées doivent être strictement positives.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="179"/>
        <source>Invalid data set.  X values must be &gt; 0.</source>
        <translation>Série de données non valide. Les abscisses doivent être strictement positives.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="188"/>
        <source>Invalid data set.  X and Y values must be &gt; 0.</source>
        <translation>Série de données non valide. Les abscisses et les ordonnées doivent être strictement positives.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="199"/>
        <location filename="../src/core/math/RegressionFit.cpp" line="220"/>
        <source>Invalid data set.  X values cannot = 0.</source>
        <translation>Série de données non valide. Les abscisses ne doivent pas être nulles.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="235"/>
        <source>Invalid data set for logistic fit.</source>
        <translation>Série de données non valide pour un ajustement logistique.</translation>
    </message>
    <message>
        <location filename="../src/core/math/RegressionFit.cpp" line="248"/>
        <source>Invalid data set for sinusoidal fit.</source>
        <translation>Série de données non valide pour un ajustement sinusoïdal.</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="47"/>
        <source>Sum of x values:</source>
        <translation>Somme des valeurs de x :</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="48"/>
        <source>Mean value of x:</source>
        <translation>Moyenne de x :</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="49"/>
        <source>Sample standard deviation of x:</source>
        <translation>Écart type de l&apos;échantillon, en x :</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="50"/>
        <source>Population standard deviation of x:</source>
        <translation>Écart type de la population, en x :</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="52"/>
        <source>Sum of y values:</source>
        <translation>Somme des valeurs de y :</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="53"/>
        <source>Mean value of y:</source>
        <translation>Moyenne de y :</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="54"/>
        <source>Sample standard deviation of y:</source>
        <translation>Écart type de l&apos;échantillon, en y :</translation>
    </message>
    <message>
        <location filename="../src/core/math/Statistics.cpp" line="55"/>
        <source>Population standard deviation of y:</source>
        <translation>Écart type de la population, en y :</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 1</source>
        <translation>Série de données 1</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="40"/>
        <source>Data set 2</source>
        <translation>Série de données 2</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="102"/>
        <source>%s holds the fitted curve: %d points.</source>
        <translation>%s contient la courbe ajustée : %d points.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="103"/>
        <source>%s is ready: %d points.</source>
        <translation>%s est prête : %d points.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="148"/>
        <source>The clipboard does not hold a table of points.</source>
        <translation>Le presse-papiers ne contient pas de tableau de points.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="158"/>
        <source>%s: %d points pasted. Ctrl+Z brings back the previous set.</source>
        <translation>%s : %d points collés. Ctrl+Z rétablit la série précédente.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="172"/>
        <source>%s: %d points read from %s.</source>
        <translation>%s : %d points lus dans %s.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="188"/>
        <source>Nothing to undo.</source>
        <translation>Rien à annuler.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.cpp" line="198"/>
        <source>%s is back as it was: %d points.</source>
        <translation>%s est rétablie comme avant : %d points.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="54"/>
        <source>user</source>
        <translation>saisie</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="55"/>
        <source>clear</source>
        <translation>vide</translation>
    </message>
    <message>
        <location filename="../src/core/pages/DataPageSession.h" line="56"/>
        <source>file: </source>
        <translation>fichier : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="42"/>
        <source>Expression : </source>
        <translation>Expression : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="43"/>
        <source>Result : </source>
        <translation>Résultat : </translation>
    </message>
    <message>
        <location filename="../src/core/pages/EvaluatorSession.h" line="45"/>
        <source>A variable refers to itself.</source>
        <translation>Une variable fait référence à elle-même.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="41"/>
        <source>Matrix Expression:</source>
        <translation>Expression matricielle :</translation>
    </message>
    <message>
        <location filename="../src/core/pages/MatrixSession.h" line="42"/>
        <source>Error: Invalid matrix expression.</source>
        <translation>Erreur : expression matricielle non valide.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/NumberEntry.cpp" line="52"/>
        <source>%s must be a number.</source>
        <translation>%s : entrez un nombre.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="13"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start</source>
        <translation>Début</translation>
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
        <translation>Nombre de points</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min</source>
        <translation>Min x</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max</source>
        <translation>Max x</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="14"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min</source>
        <translation>Min y</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="15"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max</source>
        <translation>Max y</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="27"/>
        <source>Invalid function domain. Start must be less than Finish.</source>
        <translation>Intervalle de la fonction non valide. Le début doit être inférieur à la fin.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="29"/>
        <source>Invalid graph X range. X min must be less than X max.</source>
        <translation>Fenêtre non valide sur l&apos;axe des x : Min x doit être inférieur à Max x.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="31"/>
        <source>Invalid graph Y range. Y min must be less than Y max.</source>
        <translation>Fenêtre non valide sur l&apos;axe des y : le minimum doit être inférieur au maximum.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PlotPageForm.cpp" line="76"/>
        <source>The number of points must be from %d to %d.</source>
        <translation>Le nombre de points doit être compris entre %d et %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="59"/>
        <source>The width must be from %s to %s inches, the page&apos;s width.</source>
        <translation>La largeur doit être comprise entre %s et %s pouces, la largeur de la page.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="64"/>
        <source>The height must be from %s to %s inches, the page&apos;s height.</source>
        <translation>La hauteur doit être comprise entre %s et %s pouces, la hauteur de la page.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="70"/>
        <source>The number of copies must be from %d to %d.</source>
        <translation>Le nombre d&apos;exemplaires doit être compris entre %d et %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="76"/>
        <source>%.1f x %.1f inches</source>
        <translation>%.1f sur %.1f pouces</translation>
    </message>
    <message>
        <location filename="../src/core/pages/PrintSetupForm.cpp" line="83"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="60"/>
        <source>y-axis times %s</source>
        <translation>axe des ordonnées multiplié par %s</translation>
    </message>
    <message>
        <location filename="../src/core/pages/SpeechPageForm.cpp" line="27"/>
        <source>The number of decimal places must be from %d to %d.</source>
        <translation>Le nombre de décimales doit être compris entre %d et %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="32"/>
        <source>The number of tick marks must be from %d to %d.</source>
        <translation>Le nombre de graduations doit être compris entre %d et %d.</translation>
    </message>
    <message>
        <location filename="../src/core/pages/WavePageForm.cpp" line="36"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="78"/>
        <source>Y Threshold Level</source>
        <translation>Niveau de seuil en y</translation>
    </message>
    <message>
        <location filename="../src/core/settings/FirstStart.h" line="17"/>
        <source>Self-voicing is on; Control+Q switches it off and on again.</source>
        <translation>La voix intégrée est activée ; Ctrl+Q la coupe et la rétablit.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="18"/>
        <source>The data set is empty.</source>
        <translation>La série de données est vide.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>Last point.</source>
        <translation>Dernier point.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="108"/>
        <source>First point.</source>
        <translation>Premier point.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further maximum.</source>
        <translation>Pas d&apos;autre maximum après ce point.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="120"/>
        <source>No further minimum.</source>
        <translation>Pas d&apos;autre minimum après ce point.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="124"/>
        <source>No further crossing of the x-axis.</source>
        <translation>Pas d&apos;autre passage par l&apos;axe des x après ce point.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="127"/>
        <source>No earlier crossing of the x-axis.</source>
        <translation>Pas de passage par l&apos;axe des x avant ce point.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="134"/>
        <source>Data set 2 is empty.</source>
        <translation>La série de données 2 est vide.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="135"/>
        <source>Data set 1 is empty.</source>
        <translation>La série de données 1 est vide.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/GraphPlayback.cpp" line="142"/>
        <source>No further crossing of the two data sets.</source>
        <translation>Pas d&apos;autre intersection des deux séries de données après ce point.</translation>
    </message>
    <message>
        <location filename="../src/core/sound/PlayTimeLimit.cpp" line="13"/>
        <source>The play time must be from %d to %d seconds.</source>
        <translation>La durée de lecture doit être comprise entre %d et %d secondes.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="12"/>
        <source>hexadecimal.</source>
        <translation>hexadécimal.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="12"/>
        <source>decimal.</source>
        <translation>décimal.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="13"/>
        <source>octal.</source>
        <translation>octal.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="13"/>
        <source>binary.</source>
        <translation>binaire.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>degrees.</source>
        <translation>degrés.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="14"/>
        <source>radians.</source>
        <translation>radians.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.cpp" line="15"/>
        <source>grad.</source>
        <translation>grades.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="9"/>
        <source>Display. </source>
        <translation>Affichage. </translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="10"/>
        <source>inverse</source>
        <translation>inverse</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="11"/>
        <source>hyperbolic</source>
        <translation>hyperbolique</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="12"/>
        <source>right shift</source>
        <translation>décalage à droite</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="14"/>
        <source>Hyperbolic check box: checked.</source>
        <translation>Case Hyperbolique : cochée.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="15"/>
        <source>Hyperbolic check box: unchecked.</source>
        <translation>Case Hyperbolique : décochée.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="16"/>
        <source>Inverse check box: checked.</source>
        <translation>Case Inverse : cochée.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorAnnouncements.h" line="17"/>
        <source>Inverse check box: unchecked.</source>
        <translation>Case Inverse : décochée.</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="23"/>
        <source>backspace</source>
        <translation>retour arrière</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="41"/>
        <source>left shift</source>
        <translation>décalage à gauche</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="45"/>
        <source>e to the x</source>
        <translation>exponentielle de x</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="50"/>
        <source>x to the power y</source>
        <translation>x puissance y</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="51"/>
        <source>square root</source>
        <translation>racine carrée</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="52"/>
        <source>one over x</source>
        <translation>un sur x</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="53"/>
        <source>n factorial</source>
        <translation>factorielle de n</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="57"/>
        <source>plus minus</source>
        <translation>changement de signe</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="59"/>
        <source>memory store</source>
        <translation>mise en mémoire</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="65"/>
        <source>memory plus</source>
        <translation>ajout à la mémoire</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="70"/>
        <source>pie</source>
        <translation>pi</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="71"/>
        <source>memory clear</source>
        <translation>effacement de la mémoire</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="73"/>
        <source>times</source>
        <translation>fois</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CalculatorKeyTable.cpp" line="77"/>
        <source>memory recall</source>
        <translation>rappel de la mémoire</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="47"/>
        <source>x = %1, y = %2</source>
        <translation>x égale %1, i grec égale %2</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="52"/>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="67"/>
        <source>times ten to the</source>
        <translation>fois dix puissance</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="58"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="186"/>
        <location filename="../src/ui/pages/CSettingsPage.cpp" line="41"/>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <location filename="../src/core/speech/CoordinatePhrase.cpp" line="59"/>
        <source>Infinity</source>
        <translation>Infini</translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> minus </source>
        <translation> moins </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> plus </source>
        <translation> plus </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="11"/>
        <source> times </source>
        <translation> fois </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> divide </source>
        <translation> divisé par </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> begin matrix </source>
        <translation> début de matrice </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="12"/>
        <source> end matrix </source>
        <translation> fin de matrice </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> column </source>
        <translation> colonne </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> row </source>
        <translation> ligne </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="13"/>
        <source> to the power of </source>
        <translation> puissance </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> open paren </source>
        <translation> parenthèse ouvrante </translation>
    </message>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="14"/>
        <source> close paren </source>
        <translation> parenthèse fermante </translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak everything</source>
        <translation>Tout dire</translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Speak only what the screen reader cannot</source>
        <translation>Ne dire que ce que le lecteur d&apos;écran ne peut pas savoir</translation>
    </message>
    <message>
        <location filename="../src/core/speech/VoicingMode.h" line="22"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="133"/>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="18"/>
        <source>%1 (%2 to %3)</source>
        <translation>%1 (de %2 à %3)</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="166"/>
        <source>Voice %1, rate %2, pitch %3, volume %4.</source>
        <translation>Voix %1, débit %2, hauteur %3, volume %4.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/CDirectSS.cpp" line="176"/>
        <source>%1 pronounces words by the rules of voice %2; it has no user lexicon.</source>
        <translation>%1 prononce les mots selon les règles de la voix %2 ; il n&apos;a pas de lexique utilisateur.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="10"/>
        <source>Self-voicing activated.</source>
        <translation>Voix intégrée activée.</translation>
    </message>
    <message>
        <location filename="../src/platform/speech/SelfVoicing.cpp" line="12"/>
        <source>Self-voicing deactivated.</source>
        <translation>Voix intégrée désactivée.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="39"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="43"/>
        <source>Licence: </source>
        <translation>Licence : </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="53"/>
        <source>Libraries used: </source>
        <translation>Bibliothèques utilisées : </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="58"/>
        <source>About Sonalyx</source>
        <translation>À propos de Sonalyx</translation>
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
        <translation>avec la technologie Sonitrace</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="73"/>
        <source>The Sonalyx is a scientific graphing </source>
        <translation>Sonalyx est une calculatrice scientifique et </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="74"/>
        <source>calculator.  It provides standard functions for computation and two </source>
        <translation>graphique. Elle offre les fonctions de calcul usuelles et le tracé en deux </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="75"/>
        <source>dimensional graphing of mathematical expressions.  The Program is </source>
        <translation>dimensions d&apos;expressions mathématiques. Le programme </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="76"/>
        <source>entirely self-voicing and provides auditory response for program navigation.</source>
        <translation>parle entièrement de lui-même et donne un retour sonore pour naviguer dans le programme.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="81"/>
        <source>Send comments and suggestions to:</source>
        <translation>Envoyez vos remarques et suggestions à :</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="91"/>
        <source>This program supplied as is.  No implied or </source>
        <translation>Ce programme est fourni tel quel. Aucune garantie, implicite ou </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="92"/>
        <source>expressed warranty exists for the performance </source>
        <translation>explicite, n&apos;est donnée quant aux performances </translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAboutDlg.cpp" line="93"/>
        <source>and function of this software.</source>
        <translation>et au fonctionnement de ce logiciel.</translation>
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
        <translation>bouton</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="25"/>
        <source>check box</source>
        <translation>case à cocher</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="27"/>
        <source>radio button</source>
        <translation>bouton radio</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="29"/>
        <source>edit</source>
        <translation>zone de saisie</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="31"/>
        <source>combo box</source>
        <translation>liste déroulante</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="33"/>
        <source>list</source>
        <translation>liste</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="35"/>
        <source>list item</source>
        <translation>élément de liste</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="37"/>
        <source>tree</source>
        <translation>arborescence</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="39"/>
        <source>tree item</source>
        <translation>élément d&apos;arborescence</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="41"/>
        <source>table</source>
        <translation>tableau</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="43"/>
        <source>cell</source>
        <translation>cellule</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="45"/>
        <source>spin box</source>
        <translation>zone numérique</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="47"/>
        <source>slider</source>
        <translation>glissière</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="49"/>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="51"/>
        <source>link</source>
        <translation>lien</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="53"/>
        <source>tab</source>
        <translation>onglet</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="55"/>
        <source>menu item</source>
        <translation>élément de menu</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>checked</source>
        <translation>coché</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CAccessibilityHooks.cpp" line="117"/>
        <source>not checked</source>
        <translation>non coché</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="401"/>
        <source>&amp;Hide Graph</source>
        <translation>&amp;Masquer le graphique</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="402"/>
        <source>&amp;Show Graph</source>
        <translation>&amp;Afficher le graphique</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>Print Error</source>
        <translation>Erreur d&apos;impression</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="437"/>
        <source>No data set found - nothing to print.</source>
        <translation>Aucune série de données trouvée : rien à imprimer.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: enabled.</source>
        <translation>Retour automatique : activé.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CChildFrame.cpp" line="460"/>
        <source>Auto return: disabled.</source>
        <translation>Retour automatique : désactivé.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="58"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="110"/>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="59"/>
        <location filename="../src/ui/app/CommandTable.cpp" line="40"/>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CMainFrame.cpp" line="128"/>
        <source>. Grayed.</source>
        <translation>. Indisponible.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="32"/>
        <source>&amp;Open Data Set ...</source>
        <translation>&amp;Ouvrir une série de données...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="33"/>
        <source>&amp;Save Data Set ...</source>
        <translation>&amp;Enregistrer la série de données...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="34"/>
        <source>&amp;Paste Data From Clipboard</source>
        <translation>&amp;Coller les données du presse-papiers</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="35"/>
        <source>&amp;Copy Data To Clipboard</source>
        <translation>Co&amp;pier les données dans le presse-papiers</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="36"/>
        <source>&amp;Load Constants ...</source>
        <translation>C&amp;harger les constantes...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="37"/>
        <source>Sa&amp;ve Constants ...</source>
        <translation>Enregistrer les co&amp;nstantes...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="38"/>
        <source>Res&amp;tore Default Parameters</source>
        <translation>&amp;Rétablir les paramètres par défaut</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="39"/>
        <source>P&amp;rint GraphTABCtrl+P</source>
        <translation>&amp;Imprimer le graphiqueTABCtrl+P</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="41"/>
        <source>&amp;Calculator</source>
        <translation>&amp;Calculatrice</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="42"/>
        <source>&amp;Evaluator</source>
        <translation>É&amp;valuateur</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="43"/>
        <source>Data Set &amp;1</source>
        <translation>Série de données &amp;1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="44"/>
        <source>Data Set &amp;2</source>
        <translation>Série de données &amp;2</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="45"/>
        <source>&amp;Matrices</source>
        <translation>&amp;Matrices</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="46"/>
        <source>&amp;Source</source>
        <translation>&amp;Source</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="47"/>
        <source>&amp;Calculus</source>
        <translation>&amp;Analyse</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="48"/>
        <source>&amp;Axes</source>
        <translation>A&amp;xes</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="49"/>
        <source>&amp;Frame</source>
        <translation>&amp;Cadre</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="50"/>
        <source>&amp;Range</source>
        <translation>&amp;Fenêtre</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="51"/>
        <source>Speec&amp;h</source>
        <translation>&amp;Parole</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="52"/>
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="53"/>
        <source>&amp;Play Time</source>
        <translation>&amp;Durée de lecture</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="54"/>
        <source>&amp;Frequency Range</source>
        <translation>&amp;Plage de fréquences</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="55"/>
        <source>&amp;Wave Type</source>
        <translation>&amp;Type de son</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="56"/>
        <source>&amp;AutoReturn</source>
        <translation>Retour &amp;automatique</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="57"/>
        <source>Self-&amp;VoicingTABCtrl+Q, Alt+S</source>
        <translation>Vo&amp;ix intégréeTABCtrl+Q, Alt+S</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="58"/>
        <source>&amp;LargerTABF8</source>
        <translation>A&amp;grandirTABF8</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="59"/>
        <source>&amp;SmallerTABF7</source>
        <translation>&amp;RéduireTABF7</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="60"/>
        <source>&amp;Evaluate Expression 1TABF4</source>
        <translation>É&amp;valuer l&apos;expression 1TABF4</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="61"/>
        <source>&amp;Play Data SetTABF5</source>
        <translation>&amp;Lire la série de donnéesTABF5</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="62"/>
        <source>Play Data and &amp;TicksTABF6</source>
        <translation>Lire les données et les &amp;graduationsTABF6</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="63"/>
        <source>&amp;Write Wave File</source>
        <translation>Enregistrer un fichier &amp;son</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="64"/>
        <source>Find &amp;IntersectionTABAlt+I</source>
        <translation>Trouver l&apos;&amp;intersectionTABAlt+I</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="65"/>
        <source>Find &amp;ZerosTABAlt+0</source>
        <translation>Trouver les &amp;zérosTABAlt+0</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="66"/>
        <source>&amp;Show GraphTABF3</source>
        <translation>&amp;Afficher le graphiqueTABF3</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="68"/>
        <source>&amp;User ManualTABF1</source>
        <translation>&amp;Manuel d&apos;utilisationTABF1</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="69"/>
        <source>&amp;Calculator Hotkeys</source>
        <translation>Raccourcis de la &amp;calculatrice</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="70"/>
        <source>&amp;Graphing Hotkeys</source>
        <translation>Raccourcis des &amp;graphiques</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="71"/>
        <source>&amp;Navigational Hotkeys</source>
        <translation>Raccourcis de &amp;navigation</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="79"/>
        <source>&amp;Online Help</source>
        <translation>Aide en &amp;ligne</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="80"/>
        <source>&amp;About the Sonalyx ...</source>
        <translation>À &amp;propos de Sonalyx...</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="124"/>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="130"/>
        <source>&amp;Plot</source>
        <translation>&amp;Tracé</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="138"/>
        <source>&amp;Wave</source>
        <translation>&amp;Son</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="151"/>
        <source>&amp;Graph</source>
        <translation>&amp;Graphique</translation>
    </message>
    <message>
        <location filename="../src/ui/app/CommandTable.cpp" line="161"/>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="38"/>
        <source>Open Data Set</source>
        <translation>Ouvrir une série de données</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="63"/>
        <source>Save Data Set</source>
        <translation>Enregistrer la série de données</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="72"/>
        <source>Saved %1 points as %2.</source>
        <translation>%1 points enregistrés sous %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/DataFileCommands.cpp" line="82"/>
        <source>%1 points copied to the clipboard.</source>
        <translation>%1 points copiés dans le presse-papiers.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="26"/>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="28"/>
        <source>Left</source>
        <translation>Flèche gauche</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="30"/>
        <source>Right</source>
        <translation>Flèche droite</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="32"/>
        <source>Up</source>
        <translation>Flèche haut</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="34"/>
        <source>Down</source>
        <translation>Flèche bas</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="36"/>
        <source>Page Up</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="38"/>
        <source>Page Down</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="40"/>
        <source>Home</source>
        <translation>Début</translation>
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
        <translation>Espace</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="69"/>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="70"/>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="130"/>
        <source>Stops the sound of the graph.</source>
        <translation>Arrête le son du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="132"/>
        <source>Steps to the next point of the graph and says it.</source>
        <translation>Passe au point suivant du graphique et l&apos;annonce.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="134"/>
        <source>Steps to the previous point of the graph and says it.</source>
        <translation>Revient au point précédent du graphique et l&apos;annonce.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="136"/>
        <source>Steps to the next maximum of the graph.</source>
        <translation>Passe au maximum suivant du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="138"/>
        <source>Steps to the next minimum of the graph.</source>
        <translation>Passe au minimum suivant du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="140"/>
        <source>Goes to the first point of the graph.</source>
        <translation>Va au premier point du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="142"/>
        <source>Goes to the last point of the graph.</source>
        <translation>Va au dernier point du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="144"/>
        <source>On the Matrix page: copies the matrix as a picture and as text.</source>
        <translation>Sur la page Matrice : copie la matrice en image et en texte.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="146"/>
        <source>Steps back to the previous place where the graph crosses the x-axis.</source>
        <translation>Revient à l&apos;endroit précédent où la courbe coupe l&apos;axe des x.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="156"/>
        <source>Says the display.</source>
        <translation>Dit l&apos;affichage.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="158"/>
        <source>Says the memory.</source>
        <translation>Dit la mémoire.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="160"/>
        <source>Ticks or clears Hyperbolic.</source>
        <translation>Coche ou décoche Hyperbolique.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="162"/>
        <source>Ticks or clears Inverse.</source>
        <translation>Coche ou décoche Inverse.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="164"/>
        <source>Right shift.</source>
        <translation>Décalage à droite.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="166"/>
        <source>Recalls the memory.</source>
        <translation>Rappelle la mémoire.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="174"/>
        <source>Goes to the next tab of the control panel.</source>
        <translation>Va à l&apos;onglet suivant du panneau de commande.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="175"/>
        <source>Goes to the previous tab of the control panel.</source>
        <translation>Va à l&apos;onglet précédent du panneau de commande.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="176"/>
        <source>Goes to the next control of the page.</source>
        <translation>Va au contrôle suivant de la page.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="177"/>
        <source>Goes to the previous control of the page.</source>
        <translation>Va au contrôle précédent de la page.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="178"/>
        <source>On the tabs: goes to the tab beside.</source>
        <translation>Sur les onglets : va à l&apos;onglet voisin.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="180"/>
        <source>In a group of choices: chooses the one above or below; in a list: the item above or below.</source>
        <translation>Dans un groupe de choix : choisit celui du dessus ou du dessous ; dans une liste : l&apos;élément du dessus ou du dessous.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="181"/>
        <source>Presses the button, or ticks or clears the box, that has the focus.</source>
        <translation>Appuie sur le bouton, ou coche ou décoche la case, qui a le focus.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="183"/>
        <source>On a slider: moves it by one, by a page, or to an end.</source>
        <translation>Sur une glissière : la déplace d&apos;un cran, d&apos;une page ou jusqu&apos;à une extrémité.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="184"/>
        <source>Opens the menu bar.</source>
        <translation>Ouvre la barre de menus.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="185"/>
        <source>Closes a menu or a dialog.</source>
        <translation>Ferme un menu ou une boîte de dialogue.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="237"/>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source> or </source>
        <translation> ou </translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="260"/>
        <source>On the Evaluator and Matrix pages: evaluates the expression, or stores name = expression.</source>
        <translation>Sur les pages Évaluateur et Matrice : évalue l&apos;expression, ou enregistre nom = expression.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="261"/>
        <source>On the Evaluator and Matrix pages: brings earlier entries back.</source>
        <translation>Sur les pages Évaluateur et Matrice : rappelle les saisies précédentes.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="262"/>
        <source>On the Data pages, in f(x): fills the table with f(x) over the function&apos;s domain.</source>
        <translation>Sur les pages Données, dans f(x) : remplit le tableau avec f(x) sur l&apos;intervalle de la fonction.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="263"/>
        <source>On the Data pages: undoes a paste or a load of the data set.</source>
        <translation>Sur les pages Données : annule un collage ou un chargement de la série de données.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="288"/>
        <source>Moving around the program</source>
        <translation>Se déplacer dans le programme</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="289"/>
        <source>Hot keys</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="290"/>
        <source>The graph and its sound</source>
        <translation>Le graphique et son rendu sonore</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="306"/>
        <source>The menus</source>
        <translation>Les menus</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="307"/>
        <source>The Calculator page</source>
        <translation>La page Calculatrice</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="308"/>
        <source>The Evaluator, Matrix and Data pages</source>
        <translation>Les pages Évaluateur, Matrice et Données</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="313"/>
        <location filename="../src/ui/app/KeyList.cpp" line="323"/>
        <source>Sonalyx keys</source>
        <translation>Touches de Sonalyx</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="314"/>
        <source>Navigational hotkeys</source>
        <translation>Raccourcis de navigation</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="315"/>
        <source>Graphing hotkeys</source>
        <translation>Raccourcis des graphiques</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="316"/>
        <source>Calculator hotkeys</source>
        <translation>Raccourcis de la calculatrice</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="336"/>
        <source>This list is made from the program&apos;s own tables of keys.</source>
        <translation>Cette liste est produite à partir des tables de touches du programme lui-même.</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="337"/>
        <source>Back to the manual</source>
        <translation>Retour au manuel</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <location filename="../src/ui/app/KeyList.cpp" line="344"/>
        <source>What they do</source>
        <translation>Effet</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="21"/>
        <location filename="../src/ui/app/ProductInfo.h" line="31"/>
        <source>GNU General Public License, version 3 or later</source>
        <translation>GNU General Public License, version 3 ou ultérieure</translation>
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
        <translation>GNU Lesser General Public License, version 2.1 ou ultérieure</translation>
    </message>
    <message>
        <location filename="../src/ui/app/ProductInfo.h" line="33"/>
        <source>zlib License</source>
        <translation>Licence zlib</translation>
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
        <translation>Bouton. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="47"/>
        <source>Check box. </source>
        <translation>Case à cocher. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="50"/>
        <source>Radio button. </source>
        <translation>Bouton radio. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="57"/>
        <source> Checked.</source>
        <translation> Coché.</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSButton.cpp" line="56"/>
        <source> Unchecked.</source>
        <translation> Non coché.</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSEdit.cpp" line="42"/>
        <source>Backspace. </source>
        <translation>Retour arrière. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSListBox.cpp" line="22"/>
        <source>Blank line</source>
        <translation>Ligne vide</translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSStatic.cpp" line="21"/>
        <source>Label. </source>
        <translation>Étiquette. </translation>
    </message>
    <message>
        <location filename="../src/ui/controls/CTTSTabCtrl.cpp" line="18"/>
        <source>screen.</source>
        <translation>écran.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="78"/>
        <source>SLX - Data Plot Print Setup</source>
        <translation>SLX - Configuration de l&apos;impression du graphique</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="84"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="86"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="94"/>
        <source>Printer:</source>
        <translation>Imprimante :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="88"/>
        <source>No printer installed</source>
        <translation>Aucune imprimante installée</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="89"/>
        <source>With no printer, Print saves the graph as a PDF file.</source>
        <translation>Sans imprimante, Imprimer enregistre le graphique dans un fichier PDF.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="95"/>
        <source>Print to file</source>
        <translation>Imprimer dans un fichier</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="96"/>
        <source>Saves the page as a PDF file instead of printing it.</source>
        <translation>Enregistre la page dans un fichier PDF au lieu de l&apos;imprimer.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="103"/>
        <source>File name:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="99"/>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="100"/>
        <source>The PDF file the page is saved in.</source>
        <translation>Le fichier PDF dans lequel la page est enregistrée.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="115"/>
        <source>Font:</source>
        <translation>Police :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="104"/>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="113"/>
        <source>Font size:</source>
        <translation>Taille de police :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="108"/>
        <source>Font size</source>
        <translation>Taille de police</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="117"/>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="131"/>
        <source>Width:</source>
        <translation>Largeur :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="119"/>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="120"/>
        <source>The graph&apos;s width on paper, in inches.</source>
        <translation>La largeur du graphique sur le papier, en pouces.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="132"/>
        <source>Height:</source>
        <translation>Hauteur :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="122"/>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="123"/>
        <source>The graph&apos;s height on paper, in inches.</source>
        <translation>La hauteur du graphique sur le papier, en pouces.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="125"/>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="126"/>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="136"/>
        <source>Paper size:</source>
        <translation>Format du papier :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="134"/>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="139"/>
        <source>Number of copies:</source>
        <translation>Nombre d&apos;exemplaires :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="137"/>
        <source>Number of copies</source>
        <translation>Nombre d&apos;exemplaires</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="143"/>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="140"/>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="141"/>
        <source>Printed above the graph.</source>
        <translation>Imprimé au-dessus du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="145"/>
        <source>Data Style</source>
        <translation>Style des données</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw Data Points</source>
        <translation>Tracer les points</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="147"/>
        <source>Draw line through points</source>
        <translation>Tracer une ligne passant par les points</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="148"/>
        <source>Draw both line and data points</source>
        <translation>Tracer la ligne et les points</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="156"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="122"/>
        <source>Axes</source>
        <translation>Axes</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="158"/>
        <source>Show X-Axis</source>
        <translation>Afficher l&apos;axe des x</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="159"/>
        <source>Show Y-Axis</source>
        <translation>Afficher l&apos;axe des y</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="164"/>
        <source>Axis Labels</source>
        <translation>Étiquettes des axes</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="166"/>
        <source>X Labels</source>
        <translation>Étiquettes en x</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="167"/>
        <source>Y Labels</source>
        <translation>Étiquettes en y</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="172"/>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="58"/>
        <source>Tick Marks</source>
        <translation>Graduations</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>No Tick Marks</source>
        <translation>Sans graduations</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="174"/>
        <source>Grid Lines</source>
        <translation>Quadrillage</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="182"/>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="190"/>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="191"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="79"/>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="45"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="240"/>
        <source>No printer is installed: the graph can only be saved as a PDF file.</source>
        <translation>Aucune imprimante n&apos;est installée : le graphique ne peut être enregistré que dans un fichier PDF.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="380"/>
        <source>Type the name of the PDF file to save the graph in.</source>
        <translation>Tapez le nom du fichier PDF dans lequel enregistrer le graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="400"/>
        <source>The graph could not be printed on %s.</source>
        <translation>Le graphique n&apos;a pas pu être imprimé sur %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="403"/>
        <source>The graph is printed on %s.</source>
        <translation>Le graphique est imprimé sur %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="404"/>
        <source>The graph is saved in %s.</source>
        <translation>Le graphique est enregistré dans %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/dialogs/CSLXPrintDlg.cpp" line="426"/>
        <source>No printer is installed: Print saves the graph as a PDF file.</source>
        <translation>Aucune imprimante n&apos;est installée : Imprimer enregistre le graphique dans un fichier PDF.</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="74"/>
        <source>Write Wave File</source>
        <translation>Enregistrer un fichier son</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphPlayer.cpp" line="94"/>
        <source>Wave file written: %s.</source>
        <translation>Fichier son enregistré : %s.</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="32"/>
        <location filename="../src/ui/graph/CGraphWnd.cpp" line="84"/>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="26"/>
        <source>Graph</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>x:</source>
        <translation>x :</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>y:</source>
        <translation>y :</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="32"/>
        <source>Point:</source>
        <translation>Point :</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="60"/>
        <source>Data Set 1</source>
        <translation>Série de données 1</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="61"/>
        <source>Data Set 2</source>
        <translation>Série de données 2</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="52"/>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="53"/>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <location filename="../src/ui/graph/CPlotWnd.cpp" line="77"/>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
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
        <translation>Message</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="78"/>
        <source>Coordinates</source>
        <translation>Coordonnées</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="80"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="82"/>
        <source>Rectangle</source>
        <translation>Cartésiennes</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="81"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="83"/>
        <source>Polar</source>
        <translation>Polaires</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 1 table</source>
        <translation>Tableau de la série de données 1</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="91"/>
        <source>Data set 2 table</source>
        <translation>Tableau de la série de données 2</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="103"/>
        <source>Statistical Description of Data Set</source>
        <translation>Description statistique de la série de données</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="106"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="108"/>
        <source>Mode:</source>
        <translation>Type d&apos;analyse :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="118"/>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="46"/>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="120"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="121"/>
        <source>Plot Fitted Curve</source>
        <translation>Tracer la courbe ajustée</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="130"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Evaluate Statistics</source>
        <translation>Calculer les statistiques</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="135"/>
        <location filename="../src/ui/pages/CDataPage.cpp" line="136"/>
        <source>Plot Data Set 2</source>
        <translation>Tracer la série de données 2</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="250"/>
        <source>Empty Data Set</source>
        <translation>Série de données vide</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="251"/>
        <source>No data plotted -- nothing to calculate.</source>
        <translation>Aucune donnée tracée : rien à calculer.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="259"/>
        <source>Return to Data Table</source>
        <translation>Retour au tableau de données</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="273"/>
        <source>Sinusoidal Fit Parameters</source>
        <translation>Paramètres de l&apos;ajustement sinusoïdal</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="274"/>
        <source>Period: </source>
        <translation>Période : </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="276"/>
        <source>Set</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="277"/>
        <source>Use Default</source>
        <translation>Valeur par défaut</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataPage.cpp" line="291"/>
        <source>A fit needs at least two points.</source>
        <translation>Un ajustement demande au moins deux points.</translation>
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
        <translation>Tendance</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="63"/>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="117"/>
        <source>new point</source>
        <translation>nouveau point</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="64"/>
        <source>blank</source>
        <translation>vide</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="70"/>
        <source>New point.</source>
        <translation>Nouveau point.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataSetModel.cpp" line="71"/>
        <source>Row %1: </source>
        <translation>Ligne %1 : </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/CDataTableView.cpp" line="46"/>
        <source>Empty.</source>
        <translation>Vide.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="92"/>
        <source>Keyboard: </source>
        <translation>Clavier : </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="127"/>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="128"/>
        <source>Ctrl+B says the display again, Ctrl+T the memory.</source>
        <translation>Ctrl+B redit l&apos;affichage, Ctrl+T la mémoire.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="142"/>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="143"/>
        <source>Shows M while the memory holds a value.</source>
        <translation>Affiche M quand la mémoire contient une valeur.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="147"/>
        <source>Dec</source>
        <translation>Déc</translation>
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
        <translation>Base de numération</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="153"/>
        <source>Hexadecimal, decimal, octal or binary</source>
        <translation>Hexadécimal, décimal, octal ou binaire</translation>
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
        <translation>Grad</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Angle unit</source>
        <translation>Unité d&apos;angle</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="164"/>
        <source>Degrees, radians or grad</source>
        <translation>Degrés, radians ou grades</translation>
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
        <translation>La mémoire est vide.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/calculator/CCalculatorPage.cpp" line="324"/>
        <source>Memory: </source>
        <translation>Mémoire : </translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="30"/>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="32"/>
        <source>Enter evaluates it or stores name = expression; Up and Down bring earlier entries back.</source>
        <translation>Entrée l&apos;évalue ou enregistre nom = expression ; Flèche haut et Flèche bas rappellent les saisies précédentes.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="33"/>
        <source>Expression:</source>
        <translation>Expression :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="39"/>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="40"/>
        <source>The result of the last entry.</source>
        <translation>Le résultat de la dernière saisie.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="41"/>
        <source>Result:</source>
        <translation>Résultat :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/evaluator/CEvaluatorPage.cpp" line="47"/>
        <source>Every entry with its result, the newest first.</source>
        <translation>Chaque saisie avec son résultat, la plus récente en premier.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="37"/>
        <source>Matrix expression</source>
        <translation>Expression matricielle</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="38"/>
        <source>Enter evaluates it or stores NAME = expression; ANS is the last result; Up and Down bring earlier entries back.</source>
        <translation>Entrée l&apos;évalue ou enregistre Nom = expression ; ANS est le dernier résultat ; Flèche haut et Flèche bas rappellent les saisies précédentes.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="89"/>
        <source>Matrix copied to the clipboard.</source>
        <translation>Matrice copiée dans le presse-papiers.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixPage.cpp" line="90"/>
        <source>There is no matrix to copy.</source>
        <translation>Il n&apos;y a pas de matrice à copier.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="54"/>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="161"/>
        <source>Matrix display</source>
        <translation>Affichage de la matrice</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="56"/>
        <source>The last result, typeset; its context menu copies it to the clipboard.</source>
        <translation>Le dernier résultat, mis en forme ; son menu contextuel le copie dans le presse-papiers.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/matrix/CMatrixWnd.cpp" line="191"/>
        <source>Copy To Clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Start:</source>
        <translation>Début :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="34"/>
        <source>Where f(x) is first sampled.</source>
        <translation>La première valeur de x où f(x) est calculée.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="35"/>
        <source>Finish:</source>
        <translation>Fin :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="36"/>
        <source>Where f(x) is last sampled; above Start.</source>
        <translation>La dernière valeur de x où f(x) est calculée ; supérieure au début.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="37"/>
        <source># Pts:</source>
        <translation>Points :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="38"/>
        <source>How many points f(x) is sampled at.</source>
        <translation>Le nombre de points où f(x) est calculée.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>X min:</source>
        <translation>Min x :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="39"/>
        <source>The left end of the graph.</source>
        <translation>Le bord gauche du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>X max:</source>
        <translation>Max x :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="40"/>
        <source>The right end of the graph.</source>
        <translation>Le bord droit du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>Y min:</source>
        <translation>Min y :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="41"/>
        <source>The bottom of the graph.</source>
        <translation>Le bas du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>Y max:</source>
        <translation>Max y :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="42"/>
        <source>The top of the graph.</source>
        <translation>Le haut du graphique.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="57"/>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="62"/>
        <source>Sum (1+2)</source>
        <translation>Somme (1+2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1-2)</source>
        <translation>Différence (1-2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="63"/>
        <source>Difference (1 minus 2)</source>
        <translation>Différence (1 moins 2)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="72"/>
        <source>Calculus Plot</source>
        <translation>Tracé d&apos;analyse</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="74"/>
        <source>Function</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="74"/>
        <source>Integral</source>
        <translation>Intégrale</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="75"/>
        <source>Derivative</source>
        <translation>Dérivée</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="94"/>
        <source>Function Domain</source>
        <translation>Intervalle de la fonction</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="99"/>
        <source>Graph Range</source>
        <translation>Fenêtre graphique</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="104"/>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="109"/>
        <source>Auto-Scale</source>
        <translation>Échelle automatique</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="105"/>
        <source>X Auto-Scale</source>
        <translation>Échelle automatique en x</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="110"/>
        <source>Y Auto-Scale</source>
        <translation>Échelle automatique en y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="113"/>
        <source>Mode</source>
        <translation>Mode de tracé</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="116"/>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="118"/>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="120"/>
        <source>Error Bars</source>
        <translation>Barres d&apos;erreur</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="125"/>
        <source>Show X-axis</source>
        <translation>Afficher l&apos;axe des x</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="128"/>
        <source>Show Y-axis</source>
        <translation>Afficher l&apos;axe des y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="129"/>
        <source>Display X labels</source>
        <translation>Afficher les étiquettes en x</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="131"/>
        <source>Display Y labels</source>
        <translation>Afficher les étiquettes en y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="134"/>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>No ticks or grid.</source>
        <translation>Ni graduations ni quadrillage.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Tick</source>
        <translation>Graduations</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/plot/CPlotPage.cpp" line="137"/>
        <source>Grid</source>
        <translation>Quadrillage</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="46"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="161"/>
        <source>Lexicon</source>
        <translation>Lexique</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="51"/>
        <source>Pronunciations</source>
        <translation>Prononciations</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="52"/>
        <source>Each word and how the voice says it.</source>
        <translation>Chaque mot et la façon dont la voix le dit.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="53"/>
        <source>Pronunciations:</source>
        <translation>Prononciations :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="57"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="63"/>
        <source>Word:</source>
        <translation>Mot :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="58"/>
        <source>The word as the program writes it.</source>
        <translation>Le mot tel que le programme l&apos;écrit.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="60"/>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="64"/>
        <source>Say as:</source>
        <translation>Dire :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="61"/>
        <source>How the voice is to say it.</source>
        <translation>Comment la voix doit le dire.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="67"/>
        <source>Puts the word and how to say it in the list.</source>
        <translation>Met le mot et sa prononciation dans la liste.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="69"/>
        <source>Takes the chosen word out of the list.</source>
        <translation>Retire de la liste le mot choisi.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="112"/>
        <source>Type a word first.</source>
        <translation>Tapez d&apos;abord un mot.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="121"/>
        <source>Added %1, said as %2.</source>
        <translation>%1 ajouté, dit « %2 ».</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="127"/>
        <source>The list is empty.</source>
        <translation>La liste est vide.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CLexiconDlg.cpp" line="133"/>
        <source>Removed %1.</source>
        <translation>%1 supprimé.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="23"/>
        <source>eSpeak NG</source>
        <translation>eSpeak NG</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="24"/>
        <source>System speech service</source>
        <translation>Service vocal du système</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="30"/>
        <source>Speech engine</source>
        <translation>Moteur de synthèse vocale</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechEngineDlg.cpp" line="32"/>
        <source>Speak with:</source>
        <translation>Parler avec :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="46"/>
        <source>No speech engine is running.</source>
        <translation>Aucun moteur de synthèse vocale n&apos;est en marche.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="47"/>
        <source>Speech engine: %1. Voice: %2.</source>
        <translation>Moteur de synthèse vocale : %1. Voix : %2.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="54"/>
        <source>About TTS. This button tells the name, version and voice of your speech engine.</source>
        <translation>À propos de la synthèse. Ce bouton indique le nom, la version et la voix de votre moteur de synthèse vocale.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="56"/>
        <source>General. This button chooses the speech engine: eSpeak NG or the system&apos;s speech service.</source>
        <translation>Général. Ce bouton choisit le moteur de synthèse vocale : eSpeak NG ou le service vocal du système.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="57"/>
        <source>Translate. This button only says what it is for: Sonalyx speaks in the language of your desktop, so choose a voice of that language in the list of voices.</source>
        <translation>Traduire. Ce bouton dit seulement à quoi il sert : Sonalyx parle dans la langue de votre bureau, choisissez donc une voix de cette langue dans la liste des voix.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="61"/>
        <source>Lexicon. This button opens the pronunciation list: words and how the voice says them.</source>
        <translation>Lexique. Ce bouton ouvre la liste des prononciations : les mots et la façon dont la voix les dit.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="68"/>
        <source>Numbers</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="74"/>
        <source>Number of decimal places to voice:</source>
        <translation>Nombre de décimales à dire :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="71"/>
        <source>Number of decimal places to voice</source>
        <translation>Nombre de décimales à dire</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="72"/>
        <source>How many decimal places spoken numbers keep, from 0 to 15.</source>
        <translation>Combien de décimales les nombres dits gardent, de 0 à 15.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="85"/>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="89"/>
        <source>Voices</source>
        <translation>Voix</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="90"/>
        <source>The voices of the speech engine; the chosen one speaks.</source>
        <translation>Les voix du moteur de synthèse vocale ; celle qui est choisie parle.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="92"/>
        <source>Voices:</source>
        <translation>Voix :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>Rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="101"/>
        <source>How fast the voice speaks.</source>
        <translation>La vitesse à laquelle la voix parle.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>Pitch</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="103"/>
        <source>How high the voice speaks.</source>
        <translation>La hauteur de la voix.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="52"/>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="105"/>
        <source>How loud the voice speaks.</source>
        <translation>Le volume de la voix.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="109"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>percent.</source>
        <translation>pour cent.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="121"/>
        <source>Self-Voicing</source>
        <translation>Voix intégrée</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="123"/>
        <source>Sound Effects</source>
        <translation>Effets sonores</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="125"/>
        <source>Allow Self-Voicing</source>
        <translation>Autoriser la voix intégrée</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="128"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="135"/>
        <source>Beside a screen reader:</source>
        <translation>À côté d&apos;un lecteur d&apos;écran :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="129"/>
        <source>What self-voicing says while a screen reader runs: everything, or only what the screen reader cannot know.</source>
        <translation>Ce que dit la voix intégrée pendant qu&apos;un lecteur d&apos;écran fonctionne : tout, ou seulement ce que le lecteur d&apos;écran ne peut pas savoir.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: checked.</source>
        <translation>Autoriser les effets sonores : coché.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="149"/>
        <source>Allow sound effects: unchecked.</source>
        <translation>Autoriser les effets sonores : non coché.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="156"/>
        <source>Speech Engine</source>
        <translation>Moteur de synthèse vocale</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="158"/>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="252"/>
        <source>About TTS</source>
        <translation>À propos de la synthèse</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="159"/>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="160"/>
        <source>Translate</source>
        <translation>Traduire</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="268"/>
        <source>SONALYX_SPEECH chooses the engine of this run; %1 speaks from the next start without it.</source>
        <translation>SONALYX_SPEECH choisit le moteur de cette session ; %1 parlera au prochain démarrage sans cette variable.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="270"/>
        <source>%1 speaks now.</source>
        <translation>%1 parle maintenant.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/speech/CSpeechPage.cpp" line="273"/>
        <source>%1 cannot start here; the voice stays as it was.</source>
        <translation>%1 ne peut pas démarrer ici ; la voix reste inchangée.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="40"/>
        <source>Play Time (%d sec.)</source>
        <translation>Durée de lecture (%d secondes)</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set:</source>
        <translation>Série de données :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="54"/>
        <source>Data set volume:</source>
        <translation>Volume de la série de données :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="55"/>
        <source>How loud the curve plays.</source>
        <translation>Le volume de la courbe jouée.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="57"/>
        <source>Tick Marks:</source>
        <translation>Graduations :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="62"/>
        <source>Tick volume:</source>
        <translation>Volume des graduations :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="63"/>
        <source>How loud the tick marks click.</source>
        <translation>Le volume du clic des graduations.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="70"/>
        <source># of vertical tick marks:</source>
        <translation>Nombre de graduations verticales :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="67"/>
        <source>Number of vertical tick marks</source>
        <translation>Nombre de graduations verticales</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="68"/>
        <source>How many tick marks a sweep passes, from 5 to 15.</source>
        <translation>Combien de graduations un balayage traverse, de 5 à 15.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="75"/>
        <source>Y Threshold</source>
        <translation>Seuil en y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="77"/>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y Threshold Level:</source>
        <translation>Niveau de seuil en y :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="80"/>
        <source>Y threshold level</source>
        <translation>Niveau de seuil en y</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="81"/>
        <source>Below this y the tone turns buzzier, so you hear where the curve passes it.</source>
        <translation>Sous ce niveau de y, le son devient plus grésillant : vous entendez où la courbe le franchit.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>Play time:</source>
        <translation>Durée de lecture :</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="89"/>
        <source>seconds.</source>
        <translation>secondes.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="90"/>
        <source>How long the whole curve plays.</source>
        <translation>Le temps que dure la lecture de toute la courbe.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="109"/>
        <source>Wave Type</source>
        <translation>Type de son</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="111"/>
        <source>Mono output</source>
        <translation>Sortie mono</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="112"/>
        <source>Stereo output</source>
        <translation>Sortie stéréo</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="121"/>
        <source>Frequency Range</source>
        <translation>Plage de fréquences</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="123"/>
        <source>Frequency minimum</source>
        <translation>Fréquence minimale</translation>
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
        <translation>La hauteur du son pour le plus petit y.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="126"/>
        <source>Frequency maximum</source>
        <translation>Fréquence maximale</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="127"/>
        <source>The pitch of the highest y.</source>
        <translation>La hauteur du son pour le plus grand y.</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="134"/>
        <source>Auto-speak Coordinates</source>
        <translation>Annonce automatique des coordonnées</translation>
    </message>
    <message>
        <location filename="../src/ui/pages/wave/CWavePage.cpp" line="136"/>
        <source>Speak X and Y values at each step</source>
        <translation>À chaque pas, dire les valeurs de x et de y</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Plot</source>
        <translation>Tracé</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Wave</source>
        <translation>Son</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Speech</source>
        <translation>Parole</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="53"/>
        <source>Calculator</source>
        <translation>Calculatrice</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 1</source>
        <translation>Données 1</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Data 2</source>
        <translation>Données 2</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Evaluator</source>
        <translation>Évaluateur</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="54"/>
        <source>Matrix</source>
        <translation>Matrice</translation>
    </message>
    <message>
        <location filename="../src/ui/sheet/CCalcSheet.cpp" line="60"/>
        <source>Control panel</source>
        <translation>Panneau de commande</translation>
    </message>
</context>
</TS>
