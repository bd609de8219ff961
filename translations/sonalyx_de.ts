<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Sonalyx</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Data Set ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Data Set ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste Data From Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Data To Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load Constants ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve Constants ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Res&amp;tore Default Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rint GraphTABCtrl+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Evaluator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Set &amp;1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Set &amp;2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Matrices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calculus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speec&amp;h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Play Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frequency Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wave Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;AutoReturn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Self-&amp;VoicingTABCtrl+Q, Alt+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;LargerTABF8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;SmallerTABF7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Evaluate Expression 1TABF4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Play Data SetTABF5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Data and &amp;TicksTABF6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write Wave File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;IntersectionTABAlt+I</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;ZerosTABAlt+0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show GraphTABF3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User ManualTABF1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calculator Hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Graphing Hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Navigational Hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Online Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About the Sonalyx ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hide Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Self-voicing activated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Self-voicing deactivated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No data set found - nothing to print.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No installed printers found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Save Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Open Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No data set found - nothing to save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wave File Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto return: enabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto return: disabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. Grayed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speech</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Evaluator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Button. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check box. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radio button. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Unchecked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backspace. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> minus </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> plus </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> times </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> divide </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> begin matrix </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> end matrix </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> column </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> row </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> to the power of </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> open paren </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> close paren </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Sonalyx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sonalyx</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with Sonitrace Technology</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Sonalyx is a scientific graphing </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>calculator.  It provides standard functions for computation and two </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dimensional graphing of mathematical expressions.  The Program is </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>entirely self-voicing and provides auditory response for program navigation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send comments and suggestions to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This program supplied as is.  No implied or </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expressed warranty exists for the performance </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and function of this software.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radio button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>combo box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tree item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>spin box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>menu item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+B says the display again, Ctrl+T the memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows M while the memory holds a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oct</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hexadecimal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>decimal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>octal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>binary.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number base</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hexadecimal, decimal, octal or binary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>degrees.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radians.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>grad.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Degrees, radians or grad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inv</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hyp</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inverse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hyperbolic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> or </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>backspace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>e to the x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x to the power y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>square root</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one over x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>n factorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plus minus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory plus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>memory recall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>right shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverse check box: checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inverse check box: unchecked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hyperbolic check box: checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hyperbolic check box: unchecked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot divide by zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result is undefined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expression : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A variable refers to itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expression:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter evaluates it or stores name = expression; Up and Down bring earlier entries back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The result of the last entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every entry with its result, the newest first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrix Expression:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Invalid matrix expression.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrix expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter evaluates it or stores NAME = expression; ANS is the last result; Up and Down bring earlier entries back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrix display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last result, typeset; its context menu copies it to the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy To Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrix copied to the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no matrix to copy.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
