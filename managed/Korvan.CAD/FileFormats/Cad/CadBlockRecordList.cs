using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The block records of a drawing; releases up to 12 have none.</summary>
[NamedObjects(typeof(CadBlockTableObject), "block record")]
public partial class CadBlockRecordList : NonGenericList;
