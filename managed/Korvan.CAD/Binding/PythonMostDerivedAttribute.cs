using System;

namespace Korvan.CAD.Binding;

/// <summary>States that results declared as this class, or as one derived from it, appear in Python as the class of the
/// object, so that no cast is needed.</summary>
[AttributeUsage(AttributeTargets.Class)]
internal sealed class PythonMostDerivedAttribute : Attribute;
