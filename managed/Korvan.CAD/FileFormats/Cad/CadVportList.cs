using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The viewport configurations of a drawing; the viewports of one configuration have one name.</summary>
[NamedObjects(typeof(CadVportTableObject), "viewport")]
public partial class CadVportList : NonGenericList;
