using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The dimension styles of a drawing.</summary>
[NamedObjects(typeof(CadDimensionStyleTable), "dimension style")]
public partial class CadDimensionDictionary : NonGenericDictionary;
