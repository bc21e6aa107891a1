using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The layers of a drawing.</summary>
[NamedObjects(typeof(CadLayerTable), "layer")]
public partial class CadLayersList : NonGenericList;
