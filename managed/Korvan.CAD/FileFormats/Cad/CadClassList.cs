using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The classes that programs added to a drawing.</summary>
[NamedObjects(typeof(CadClassEntity), "class")]
public partial class CadClassList : NonGenericList;
