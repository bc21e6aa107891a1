using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>The place of a content within its table cell.</summary>
[CadSequence]
[CadBits(
    "3BD FromTopLeft", "3BD FromCenter", "BD ContentSize.Width", "BD ContentSize.Height", "BD Size.Width",
    "BD Size.Height", "BL Flags")]
public partial class CellContentGeometry
{
    /// <summary>Creates the object with its defaults.</summary>
    public CellContentGeometry()
    {
    }

    /// <summary>Gets or sets the distance from the top left corner of the cell. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint FromTopLeft { get; set; } = new();

    /// <summary>Gets or sets the distance from the middle of the cell. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint FromCenter { get; set; } = new();

    /// <summary>Gets or sets the size of the content, in drawing units. Group codes 43, 44.</summary>
    [CadSize(43, 44)]
    public CadSize ContentSize { get; set; } = new();

    /// <summary>Gets or sets the size with rotation, in drawing units. Group codes 45, 46.</summary>
    [CadSize(45, 46)]
    public CadSize Size { get; set; } = new();

    /// <summary>Gets or sets flags. Group code 95.</summary>
    [CadInt(95)]
    public int Flags { get; set; }
}
