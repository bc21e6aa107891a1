using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The text styles of a drawing.</summary>
[NamedObjects(typeof(CadStyleTableObject), "text style")]
public partial class CadStylesList : NonGenericList;
