using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A grip of a dynamic block: the point by which a user changes a parameter.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbBlockGrip")]
[CadBits(
    "base", "BL FirstParameterId", "BL SecondParameterId", "3BD Location", "B InsertCycling", "BL InsertCyclingWeight")]
public abstract partial class CadBlockGrip : CadBlockElement
{
    internal CadBlockGrip()
    {
    }

    /// <summary>Gets or sets the index of the node with the X coordinate. Group code 91.</summary>
    [CadInt(91)]
    public int FirstParameterId { get; set; }

    /// <summary>Gets or sets the index of the node with the Y coordinate. Group code 92.</summary>
    [CadInt(92)]
    public int SecondParameterId { get; set; }

    /// <summary>Gets or sets the position of the grip, in the coordinates of the block. Group codes 1010, 1020,
    /// 1030.</summary>
    [Cad3DPoint(1010)]
    public Cad3DPoint Location { get; set; } = new();

    /// <summary>Gets or sets whether the grip is one that insertion cycles through. Group code 280.</summary>
    [CadBool(280)]
    public bool InsertCycling { get; set; }

    /// <summary>Gets or sets the position in that cycle; -1 for none. Group code 93.</summary>
    [CadInt(93)]
    public int InsertCyclingWeight { get; set; }
}
