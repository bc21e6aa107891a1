using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Classes of files whose section of classes is lost.</summary>
public class ClassGuessTests
{
    [DrawingTheory]
    [InlineData("lwg__example_r14.dwg", "LWPOLYLINE HATCH WIPEOUT ACAD_TABLE")]
    [InlineData("lwg__example_2000.dwg", "WIPEOUT MULTILEADER LAYOUT")]
    [InlineData("acs__sample_base.dwg", "WIPEOUT IMAGE PDFUNDERLAY MULTILEADER ACAD_TABLE MESH")]
    public void The_fields_of_objects_tell_their_class_and_no_other_one(string name, string expected)
    {
        DwgFile file = DwgSamples.Open(DwgSamples.PathOf(name), new LoadOptions());
        List<CadClassEntity> stated =
            ClassSection.Read(new HeaderReader(file.Classes, file.Release, file.Encoding));

        List<CadClassEntity> found = ClassGuess.Find(file);

        List<string> names = [];
        for (int i = 0; i < found.Count; i++)
        {
            if (!found[i].DxfRecordName.StartsWith("DWG_TYPE_", StringComparison.Ordinal))
            {
                Assert.Equal(
                    (stated[i].DxfRecordName, stated[i].IsEntity), (found[i].DxfRecordName, found[i].IsEntity));
                names.Add(found[i].DxfRecordName);
            }
        }

        Assert.Empty(expected.Split(' ').Except(names));
    }
}
