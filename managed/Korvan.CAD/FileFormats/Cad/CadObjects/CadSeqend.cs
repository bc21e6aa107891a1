using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Ends the vertices of a polyline or the attributes of an insertion.</summary>
[CadObject("SEQEND")]
[CadBits]
public partial class CadSeqend : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSeqend()
    {
    }
}
