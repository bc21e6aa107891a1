using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>How something is plotted.</summary>
[CadObject("PLOTSETTINGS", Subclass = "AcDbPlotSettings")]
[CadBits(
    "T PageSetupName", "T PlotterName", "BS PlotFlags", "BD LeftMargin", "BD BottomMargin", "BD RightMargin",
    "BD TopMargin", "BD PaperWidth", "BD PaperHeight", "T PaperSize", "BD PlotOriginX", "BD PlotOriginY",
    "BS PaperUnits", "BS PlotRotation", "BS PlotType", "BD PlotWindowLeft", "BD PlotWindowBottom",
    "BD PlotWindowRight", "BD PlotWindowTop", "-2000 T PlotViewName", "BD ScaleNumerator", "BD ScaleDenominator",
    "T CurrentStyleSheet", "BS StandardScale", "BD ScaleFactor", "BD PaperImageOriginX", "BD PaperImageOriginY",
    "2004+ BS ShadePlotMode", "2004+ BS ShadePlotResolution", "2004+ BS ShadePlotCustomDpi", "2004+ ExchangeView()",
    "2007+ H ShadePlotHandle")]
public partial class CadPlotSettings : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadPlotSettings()
    {
    }

    /// <summary>Gets or sets the name of the page set-up. Group code 1.</summary>
    [CadString(1, Optional = true)]
    public string PageSetupName { get; set; } = "";

    /// <summary>Gets or sets the name of the device. Group code 2.</summary>
    [CadString(2)]
    public string PlotterName { get; set; } = "none_device";

    /// <summary>Gets or sets the name of the paper. Group code 4.</summary>
    [CadString(4)]
    public string PaperSize { get; set; } = "";

    /// <summary>Gets or sets the name of the view that is plotted. Group code 6.</summary>
    [CadString(6)]
    public string PlotViewName { get; set; } = "";

    /// <summary>Gets or sets the unprintable margin at the left, in millimetres. Group code 40.</summary>
    [CadDouble(40)]
    public double LeftMargin { get; set; }

    /// <summary>Gets or sets the unprintable margin at the bottom, in millimetres. Group code 41.</summary>
    [CadDouble(41)]
    public double BottomMargin { get; set; }

    /// <summary>Gets or sets the unprintable margin at the right, in millimetres. Group code 42.</summary>
    [CadDouble(42)]
    public double RightMargin { get; set; }

    /// <summary>Gets or sets the unprintable margin at the top, in millimetres. Group code 43.</summary>
    [CadDouble(43)]
    public double TopMargin { get; set; }

    /// <summary>Gets or sets the width of the paper, in millimetres. Group code 44.</summary>
    [CadDouble(44)]
    public double PaperWidth { get; set; }

    /// <summary>Gets or sets the height of the paper, in millimetres. Group code 45.</summary>
    [CadDouble(45)]
    public double PaperHeight { get; set; }

    /// <summary>Gets or sets the position of the plot along X, in millimetres. Group code 46.</summary>
    [CadDouble(46)]
    public double PlotOriginX { get; set; }

    /// <summary>Gets or sets the position of the plot along Y, in millimetres. Group code 47.</summary>
    [CadDouble(47)]
    public double PlotOriginY { get; set; }

    /// <summary>Gets or sets the left side of the window that is plotted. Group code 48.</summary>
    [CadDouble(48)]
    public double PlotWindowLeft { get; set; }

    /// <summary>Gets or sets the lower side of the window that is plotted. Group code 49.</summary>
    [CadDouble(49)]
    public double PlotWindowBottom { get; set; }

    /// <summary>Gets or sets the right side of the window that is plotted. Group code 140.</summary>
    [CadDouble(140)]
    public double PlotWindowRight { get; set; }

    /// <summary>Gets or sets the upper side of the window that is plotted. Group code 141.</summary>
    [CadDouble(141)]
    public double PlotWindowTop { get; set; }

    /// <summary>Gets or sets the length on paper that corresponds to ScaleDenominator drawing units. Group code
    /// 142.</summary>
    [CadDouble(142)]
    public double ScaleNumerator { get; set; } = 1;

    /// <summary>Gets or sets the drawing units that ScaleNumerator units of paper stand for. Group code
    /// 143.</summary>
    [CadDouble(143)]
    public double ScaleDenominator { get; set; } = 1;

    /// <summary>Gets or sets properties of the plot. Group code 70.</summary>
    [CadInt(70)]
    public CadPlotLayoutFlag PlotFlags { get; set; }

    /// <summary>Gets or sets the unit of paper. Group code 72.</summary>
    [CadShort(72)]
    public CadPlotPaperUnits PaperUnits { get; set; } = CadPlotPaperUnits.Millimeters;

    /// <summary>Gets or sets how the drawing is rotated on the paper. Group code 73.</summary>
    [CadShort(73)]
    public CadPlotRotation PlotRotation { get; set; }

    /// <summary>Gets or sets the part that is plotted. Group code 74.</summary>
    [CadShort(74)]
    public CadPlotType PlotType { get; set; } = CadPlotType.LayoutInformation;

    /// <summary>Gets or sets the name of the plot style sheet. Group code 7.</summary>
    [CadString(7)]
    public string CurrentStyleSheet { get; set; } = "";

    /// <summary>Gets or sets the number of the standard scale; 0 for fitting, 16 for 1:1. Group code 75.</summary>
    [CadShort(75)]
    public short StandardScale { get; set; } = 16;

    /// <summary>Gets or sets how viewports are plotted. Group code 76.</summary>
    [CadShort(76, Optional = true, Since = 2004)]
    public CadShadePlotMode ShadePlotMode { get; set; }

    /// <summary>Gets or sets how finely shaded viewports are plotted. Group code 77.</summary>
    [CadShort(77, Optional = true, Since = 2004)]
    public CadShadePlotResolutionLevel ShadePlotResolution { get; set; }

    /// <summary>Gets or sets the custom resolution of shaded viewports, in dots an inch. Group code 78.</summary>
    [CadShort(78, Optional = true, Since = 2004)]
    public short ShadePlotCustomDpi { get; set; }

    /// <summary>Gets or sets the factor of the standard scale. Group code 147.</summary>
    [CadDouble(147)]
    public double ScaleFactor { get; set; } = 1;

    /// <summary>Gets or sets the origin of the paper image along X. Group code 148.</summary>
    [CadDouble(148)]
    public double PaperImageOriginX { get; set; }

    /// <summary>Gets or sets the origin of the paper image along Y. Group code 149.</summary>
    [CadDouble(149)]
    public double PaperImageOriginY { get; set; }

    /// <summary>Gets or sets the handle of the visual style of shaded plots in hexadecimal. Group code 333.</summary>
    [CadHandle(333, Optional = true, Since = 2007)]
    public string ShadePlotHandle { get; set; } = "";

    private void ExchangeView(BitExchange fields)
    {
        string view = fields.Handle(HandleRole.HardPointer, fields.FindHandle(SymbolTable.View, PlotViewName));
        PlotViewName = fields.IsReading ? fields.FindName(view) ?? "" : PlotViewName;
    }
}
