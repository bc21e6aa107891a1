using System.Globalization;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <content>The variables that programs ask for most.</content>
public partial class CadHeader
{
    /// <summary>Gets or sets the factor on the lengths of all line types. $LTSCALE.</summary>
    public double LtScale
    {
        get => GetDouble("$LTSCALE", 1);
        set => Set("$LTSCALE", 40, value.ToString("R", CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the line type factor of new entities. $CELTSCALE.</summary>
    public double CurrentEntityLtScale
    {
        get => GetDouble("$CELTSCALE", 1);
        set => Set("$CELTSCALE", 40, value.ToString("R", CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the height of new texts. $TEXTSIZE.</summary>
    public double TextSize
    {
        get => GetDouble("$TEXTSIZE", 0);
        set => Set("$TEXTSIZE", 40, value.ToString("R", CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the unit of the drawing: 0 none, 1 inches, 2 feet, 4 millimetres, 5 centimetres, 6
    /// metres and others. $INSUNITS.</summary>
    public int InsUnits
    {
        get => GetInt("$INSUNITS");
        set => Set("$INSUNITS", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the system of measures: 0 imperial, 1 metric. $MEASUREMENT.</summary>
    public int Measurement
    {
        get => GetInt("$MEASUREMENT");
        set => Set("$MEASUREMENT", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the form of lengths: 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5
    /// fractional. $LUNITS.</summary>
    public int LUnits
    {
        get => GetInt("$LUNITS");
        set => Set("$LUNITS", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the decimals of lengths. $LUPREC.</summary>
    public int LUPrec
    {
        get => GetInt("$LUPREC");
        set => Set("$LUPREC", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the form of angles: 0 degrees, 1 degrees, minutes and seconds, 2 gons, 3 radians.
    /// $AUNITS.</summary>
    public int AUnits
    {
        get => GetInt("$AUNITS");
        set => Set("$AUNITS", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the decimals of angles. $AUPREC.</summary>
    public int AUPrec
    {
        get => GetInt("$AUPREC");
        set => Set("$AUPREC", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the symbol that points are drawn as. $PDMODE.</summary>
    public int PdMode
    {
        get => GetInt("$PDMODE");
        set => Set("$PDMODE", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the size of point symbols; 0 for 5 % of the view, below 0 in percent of it.
    /// $PDSIZE.</summary>
    public double PdSize
    {
        get => GetDouble("$PDSIZE", 0);
        set => Set("$PDSIZE", 40, value.ToString("R", CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets whether solids and wide lines are filled: 0 no, 1 yes. $FILLMODE.</summary>
    public int FillMode
    {
        get => GetInt("$FILLMODE");
        set => Set("$FILLMODE", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets which attributes are shown: 0 none, 1 as they say, 2 all. $ATTMODE.</summary>
    public int AttMode
    {
        get => GetInt("$ATTMODE");
        set => Set("$ATTMODE", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets whether line types in viewports are scaled to the paper: 0 no, 1 yes.
    /// $PSLTSCALE.</summary>
    public int PsLtScale
    {
        get => GetInt("$PSLTSCALE");
        set => Set("$PSLTSCALE", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets whether the model is the active layout: 0 no, 1 yes. $TILEMODE.</summary>
    public int TileMode
    {
        get => GetInt("$TILEMODE");
        set => Set("$TILEMODE", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets whether mirroring mirrors texts: 0 no, 1 yes. $MIRRTEXT.</summary>
    public int MirrText
    {
        get => GetInt("$MIRRTEXT");
        set => Set("$MIRRTEXT", 70, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets whether line weights are shown: 0 no, 1 yes. $LWDISPLAY.</summary>
    public int LwDisplay
    {
        get => GetInt("$LWDISPLAY");
        set => Set("$LWDISPLAY", 290, value.ToString(CultureInfo.InvariantCulture));
    }

    /// <summary>Gets or sets the layer of new entities. $CLAYER.</summary>
    public string CurrentLayer
    {
        get => GetString("$CLAYER");
        set => Set("$CLAYER", 8, value);
    }

    /// <summary>Gets or sets the text style of new texts. $TEXTSTYLE.</summary>
    public string CurrentTextStyle
    {
        get => GetString("$TEXTSTYLE");
        set => Set("$TEXTSTYLE", 7, value);
    }

    /// <summary>Gets or sets the line type of new entities. $CELTYPE.</summary>
    public string CurrentLineType
    {
        get => GetString("$CELTYPE");
        set => Set("$CELTYPE", 6, value);
    }

    /// <summary>Gets or sets the dimension style of new dimensions. $DIMSTYLE.</summary>
    public string CurrentDimStyle
    {
        get => GetString("$DIMSTYLE");
        set => Set("$DIMSTYLE", 2, value);
    }

    /// <summary>Gets or sets the code page of texts in releases before 2007, as in ANSI_1252. $DWGCODEPAGE.</summary>
    public string CodePage
    {
        get => GetString("$DWGCODEPAGE");
        set => Set("$DWGCODEPAGE", 3, value);
    }

    /// <summary>Gets or sets the next free handle in hexadecimal. $HANDSEED.</summary>
    public string HandSeed
    {
        get => GetString("$HANDSEED");
        set => Set("$HANDSEED", 5, value);
    }

    /// <summary>Gets or sets the smallest coordinates of the model as of the last save. The point is a copy: set it
    /// to change the drawing. $EXTMIN.</summary>
    public Cad3DPoint ExtMin
    {
        get => GetPoint("$EXTMIN");
        set => SetPoint("$EXTMIN", value);
    }

    /// <summary>Gets or sets the largest coordinates of the model as of the last save. The point is a copy: set it to
    /// change the drawing. $EXTMAX.</summary>
    public Cad3DPoint ExtMax
    {
        get => GetPoint("$EXTMAX");
        set => SetPoint("$EXTMAX", value);
    }

    /// <summary>Gets or sets the lower left limit of the model. The point is a copy: set it to change the drawing.
    /// $LIMMIN.</summary>
    public Cad3DPoint LimMin
    {
        get => GetPoint("$LIMMIN");
        set => SetPoint("$LIMMIN", value);
    }

    /// <summary>Gets or sets the upper right limit of the model. The point is a copy: set it to change the drawing.
    /// $LIMMAX.</summary>
    public Cad3DPoint LimMax
    {
        get => GetPoint("$LIMMAX");
        set => SetPoint("$LIMMAX", value);
    }

    /// <summary>Gets or sets the base point of the drawing when it is inserted. The point is a copy: set it to change
    /// the drawing. $INSBASE.</summary>
    public Cad3DPoint InsBase
    {
        get => GetPoint("$INSBASE");
        set => SetPoint("$INSBASE", value);
    }
}
