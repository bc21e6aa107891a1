using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A symbol of a shape file.</summary>
[CadObject("SHAPE", Subclass = "AcDbShape")]
[CadBits(
    "3BD InsertionPoint", "BD Size", "BD RotationAngle", "BD ScaleX", "BD ObliqueAngle", "BD Thickness",
    "BS ShapeNumber", "3BD ExtrusionDirection", "ExchangeStyle()")]
public partial class CadShape : CadExtrudedEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadShape()
    {
    }

    /// <summary>Gets or sets the insertion point, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint InsertionPoint { get; set; } = new();

    /// <summary>Gets or sets the height. Group code 40.</summary>
    [CadDouble(40)]
    public double Size { get; set; } = 1;

    /// <summary>Gets or sets the name of the shape. Group code 2.</summary>
    [CadString(2)]
    public string ShapeName { get; set; } = "";

    /// <summary>Gets or sets the rotation, in degrees. Group code 50.</summary>
    [CadAngle(50, Optional = true)]
    public double RotationAngle { get; set; }

    /// <summary>Gets or sets the scale along X. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets the slant, in degrees. Group code 51.</summary>
    [CadAngle(51, Optional = true)]
    public double ObliqueAngle { get; set; }

    /// <summary>Gets or sets the number of the shape in its file, by which drawing databases know it.</summary>
    internal int ShapeNumber { get; set; }

    /// <summary>Gets or sets the name of the style of its file in drawing databases.</summary>
    internal string StyleName { get; set; } = "";

    /// <summary>Gets or sets the handle of that style, as styles of files mostly have no names.</summary>
    internal string StyleHandle { get; set; } = "0";

    // No text file has what databases know of the shape; copies of it do.
    partial void OnExchange(ObjectExchange fields)
    {
        if (fields is MemoryExchange)
        {
            ShapeNumber = fields.Int32(0, ShapeNumber);
            StyleName = fields.Text(0, StyleName);
            StyleHandle = fields.Text(0, StyleHandle);
        }
    }

    private void ExchangeStyle(BitExchange fields)
    {
        if (fields.IsReading)
        {
            StyleHandle = fields.Handle(HandleRole.HardPointer, StyleHandle);
            StyleName = fields.FindName(StyleHandle) ?? StyleName;
            return;
        }

        bool isPresent = HandleText.TryParse(StyleHandle, out ulong handle) && fields.IsPresent(handle);
        fields.Handle(
            HandleRole.HardPointer, isPresent ? StyleHandle : fields.FindHandle(SymbolTable.Style, StyleName));
    }
}
