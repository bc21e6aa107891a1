using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The named coordinate systems of a drawing.</summary>
[NamedObjects(typeof(CadUcsTableObject), "coordinate system")]
public partial class CadUcsList : NonGenericList;
