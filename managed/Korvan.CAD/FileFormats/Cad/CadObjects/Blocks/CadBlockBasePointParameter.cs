using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>The parameter that moves the base point of a dynamic block.</summary>
[CadSequence]
[CadObject("BLOCKBASEPOINTPARAMETER", Subclass = "AcDbBlockBasepointParameter")]
[CadBits("base", "3BD Point", "3BD BasePoint")]
public partial class CadBlockBasePointParameter : CadBlock1PtParameters
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockBasePointParameter()
    {
    }

    /// <summary>Gets or sets the base point, in the coordinates of the block. Group codes 1011, 1021, 1031.</summary>
    [Cad3DPoint(1011)]
    public Cad3DPoint Point { get; set; } = new();

    /// <summary>Gets or sets the base point as it was defined, in the coordinates of the block. Group codes 1012, 1022,
    /// 1032.</summary>
    [Cad3DPoint(1012)]
    public Cad3DPoint BasePoint { get; set; } = new();
}
