using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The margins of table cells, in drawing units.</summary>
[CadSequence]
[CadLabel(301, "MARGIN")]
[CadLabel(1, "CELLMARGIN_BEGIN")]
[CadEnd(309, "CELLMARGIN_END")]
[CadBits("BD Vertical", "BD Horizontal", "BD Bottom", "BD Right", "BD HorizontalSpacing", "BD VerticalSpacing")]
public partial class CadCellMargin
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadCellMargin()
    {
    }

    /// <summary>Gets or sets the margin at the top. Group code 40.</summary>
    [CadDouble(40)]
    public double Vertical { get; set; }

    /// <summary>Gets or sets the margin at the left. Group code 40.</summary>
    [CadDouble(40)]
    public double Horizontal { get; set; }

    /// <summary>Gets or sets the margin at the bottom. Group code 40.</summary>
    [CadDouble(40)]
    public double Bottom { get; set; }

    /// <summary>Gets or sets the margin at the right. Group code 40.</summary>
    [CadDouble(40)]
    public double Right { get; set; }

    /// <summary>Gets or sets the distance of contents side by side. Group code 40.</summary>
    [CadDouble(40)]
    public double HorizontalSpacing { get; set; }

    /// <summary>Gets or sets the distance of contents one below the other. Group code 40.</summary>
    [CadDouble(40)]
    public double VerticalSpacing { get; set; }
}
