using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The named views of a drawing.</summary>
[NamedObjects(typeof(CadViewTableObject), "view")]
public partial class CadViewList : NonGenericList;
