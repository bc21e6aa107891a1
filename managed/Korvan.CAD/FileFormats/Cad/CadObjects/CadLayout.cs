using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A layout: the model, or a sheet of paper with views of it.</summary>
[CadObject("LAYOUT", Subclass = "AcDbLayout")]
[CadBits(
    "base", "T LayoutName", "BL TabOrder", "BS ControlFlags", "3BD UcsOrigin", "2RD MinLimits", "2RD MaxLimits",
    "3BD InsertionBasePoint", "3BD UcsXAxis", "3BD UcsYAxis", "BD Elevation", "BS UcsOrthographicType",
    "3BD MinExtents", "3BD MaxExtents", "2004+ ExchangeViewportCount()", "H BlockTableRecordHandle",
    "H LastActiveViewportHandle", "H", "H", "2004+ ExchangeViewports()")]
public partial class CadLayout : CadPlotSettings
{
    private readonly List<string> _viewports = [];

    /// <summary>Creates the object with its defaults.</summary>
    public CadLayout()
    {
    }

    /// <inheritdoc/>
    public override string Key => LayoutName;

    /// <summary>Gets or sets the name that its tab shows. Group code 1.</summary>
    [CadString(1)]
    public string LayoutName { get; set; } = "";

    /// <summary>Gets or sets properties of the layout. Group code 70.</summary>
    [CadInt(70)]
    public CadLayoutControlFlag ControlFlags { get; set; } = CadLayoutControlFlag.PsltScale;

    /// <summary>Gets or sets the position of the tab; 0 is the model. Group code 71.</summary>
    [CadInt(71)]
    public int TabOrder { get; set; }

    /// <summary>Gets or sets the lower left limit. Group codes 10, 20.</summary>
    [Cad2DPoint(10)]
    public Cad2DPoint MinLimits { get; set; } = new();

    /// <summary>Gets or sets the upper right limit. Group codes 11, 21.</summary>
    [Cad2DPoint(11)]
    public Cad2DPoint MaxLimits { get; set; } = new(12, 9);

    /// <summary>Gets or sets the base point of the drawing as a block. Group codes 12, 22, 32.</summary>
    [Cad3DPoint(12)]
    public Cad3DPoint InsertionBasePoint { get; set; } = new();

    /// <summary>Gets or sets the smallest coordinates of its entities. Group codes 14, 24, 34.</summary>
    [Cad3DPoint(14)]
    public Cad3DPoint MinExtents { get; set; } = new();

    /// <summary>Gets or sets the largest coordinates of its entities. Group codes 15, 25, 35.</summary>
    [Cad3DPoint(15)]
    public Cad3DPoint MaxExtents { get; set; } = new();

    /// <summary>Gets or sets the elevation. Group code 146.</summary>
    [CadDouble(146)]
    public double Elevation { get; set; }

    /// <summary>Gets or sets the origin of the coordinate system. Group codes 13, 23, 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint UcsOrigin { get; set; } = new();

    /// <summary>Gets or sets the X axis of the coordinate system. Group codes 16, 26, 36.</summary>
    [Cad3DPoint(16)]
    public Cad3DPoint UcsXAxis { get; set; } = new(1, 0, 0);

    /// <summary>Gets or sets the Y axis of the coordinate system. Group codes 17, 27, 37.</summary>
    [Cad3DPoint(17)]
    public Cad3DPoint UcsYAxis { get; set; } = new(0, 1, 0);

    /// <summary>Gets or sets the orthographic direction of the coordinate system. Group code 76.</summary>
    [CadShort(76)]
    public CadLayoutUcsOrthographicType UcsOrthographicType { get; set; }

    /// <summary>Gets or sets the handle of the block record that owns the entities, in hexadecimal. Group code
    /// 330.</summary>
    [CadHandle(330, Optional = true)]
    public string BlockTableRecordHandle { get; set; } = "";

    /// <summary>Gets or sets the handle of the viewport that was active last, in hexadecimal. Group code
    /// 331.</summary>
    [CadHandle(331, Optional = true)]
    public string LastActiveViewportHandle { get; set; } = "";

    // The references to the viewports follow from the entities of the layout.
    private void ExchangeViewportCount(BitExchange fields)
    {
        _viewports.Clear();
        for (int count = fields.CountLong(0); count > 0; count--)
        {
            _viewports.Add("0");
        }
    }

    private void ExchangeViewports(BitExchange fields) =>
        _viewports.ForEach(viewport => fields.Handle(HandleRole.SoftPointer, viewport));
}
