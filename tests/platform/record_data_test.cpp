// SPDX-License-Identifier: GPL-2.0-or-later
// The record data control over real .isd files in a temporary drive: matching, ordering,
// walking into no-match, appending, and refusing what it cannot do.
#include "platform/records/record_data.h"
#include "platform/files.h"
#include "platform/records/record_file.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using platform::RecordData;
using platform::RecordError;
using platform::RecordTable;

class RecordDataTest : public ::testing::Test {
 protected:
  RecordDataTest() { files_->mapDrive(u'D', dir_.path().toStdString()); }

  void write(const QString& name, const RecordTable& table) {
    platform::writeRecordFile(files_->resolve("D:\\Dbase\\" + name), table);
  }
  RecordData& open(const QString& name) {
    data_.SetDatabaseName("D:\\DBASE\\" + name);
    return data_;
  }
  // The values of `field` at every match, walking forward from the first.
  QStringList walk(const QString& field) {
    QStringList seen;
    for (data_.FindFirst(); !data_.NoMatch(); data_.FindNext()) seen << data_.Field(field);
    return seen;
  }

  QTemporaryDir dir_;
  platform::ScopedService<platform::Files> files_;
  RecordData data_;
};

const RecordTable kCatalog{{"ID", "Item", "Category", "sequence"},
                           {{"1", "Wool Coat", "Clothing  ", "10"},
                            {"2", "Binoculars", "Optics", "1"},
                            {" 3", "Boots", "clothing", "2"},
                            {"13", "Gloves", "CLOTHING", "1"},
                            {"", "Untitled", "Clothing", "x"}}};

TEST_F(RecordDataTest, QuotedTextMatchesInAnyCaseIgnoringTrailingBlanks) {
  write("catalog.isd", kCatalog);
  open("catalog.isd").SetCriteria(R"(Field("Category") = "Clothing")");
  EXPECT_EQ(walk("Item"), QStringList({"Wool Coat", "Boots", "Gloves", "Untitled"}));
  data_.SetCriteria(R"(Field("Category") = "clothing   ")");
  EXPECT_EQ(walk("Item").size(), 4);
  data_.SetCriteria(R"(Field("Category") = " Clothing")");
  EXPECT_TRUE(walk("Item").isEmpty()) << "a leading blank is part of the text";
}

TEST_F(RecordDataTest, NumbersMatchByValueWhateverTheirTextForm) {
  write("catalog.isd", kCatalog);
  open("catalog.isd").SetCriteria(R"(Field("ID") =  3)");
  EXPECT_EQ(walk("Item"), QStringList{"Boots"});
  data_.SetCriteria(R"(Field("ID") = 3)");
  EXPECT_EQ(walk("Item"), QStringList{"Boots"});
  data_.SetCriteria(R"(Field("ID") = 1)");
  EXPECT_EQ(walk("Item"), QStringList{"Wool Coat"}) << "13 and the empty ID are not 1";
  data_.SetCriteria(R"(Field("ID") = 0)");
  EXPECT_TRUE(walk("Item").isEmpty()) << "an empty field is no number";
  data_.SetCriteria(R"(Field("ID") = "3")");
  EXPECT_TRUE(walk("Item").isEmpty()) << "quoted, the value is compared as text";
}

TEST_F(RecordDataTest, OrdersBySequenceNumericallyWithTiesInFileOrder) {
  write("catalog.isd", kCatalog);
  open("catalog.isd").SetOrderBy("sequence");
  data_.SetCriteria(R"(Field("Category") = "Clothing")");
  EXPECT_EQ(walk("Item"), QStringList({"Gloves", "Boots", "Wool Coat", "Untitled"}));
  data_.SetOrderBy("");
  EXPECT_EQ(walk("Item"), QStringList({"Wool Coat", "Boots", "Gloves", "Untitled"}));
}

TEST_F(RecordDataTest, NextAndPreviousRunIntoNoMatchAndStayOnTheirRecord) {
  write("catalog.isd", kCatalog);
  open("catalog.isd").SetOrderBy("sequence");
  data_.SetCriteria(R"(Field("Category") = "Clothing")");
  data_.FindLast();
  EXPECT_EQ(data_.Field("Item"), "Untitled");
  data_.FindNext();
  EXPECT_TRUE(data_.NoMatch());
  EXPECT_EQ(data_.Field("Item"), "Untitled");
  data_.FindFirst();
  EXPECT_FALSE(data_.NoMatch());
  data_.FindPrevious();
  EXPECT_TRUE(data_.NoMatch());
  EXPECT_EQ(data_.Field("Item"), "Gloves");
  data_.FindNext();
  EXPECT_EQ(data_.Field("Item"), "Boots");
  data_.FindPrevious();
  EXPECT_EQ(data_.Field("Item"), "Gloves");
}

TEST_F(RecordDataTest, FindNextStartsAfterACurrentRecordThatDoesNotMatch) {
  write("catalog.isd", kCatalog);
  open("catalog.isd").SetCriteria(R"(Field("ID") = 2)");
  data_.FindFirst();
  data_.SetCriteria(R"(Field("Category") = "Clothing")");
  data_.FindNext();
  EXPECT_EQ(data_.Field("Item"), "Boots");
  data_.SetCriteria(R"(Field("ID") = 2)");
  data_.FindFirst();
  data_.SetCriteria(R"(Field("Category") = "Clothing")");
  data_.FindPrevious();
  EXPECT_EQ(data_.Field("Item"), "Wool Coat");
}

TEST_F(RecordDataTest, ReadsFieldsByNameInAnyCaseAndByPositionFromOne) {
  write("catalog.isd", kCatalog);
  open("catalog.isd").SetCriteria(R"(Field("ID") = 2)");
  data_.FindFirst();
  ASSERT_EQ(data_.FieldCount(), 4);
  EXPECT_EQ(data_.Field("item"), "Binoculars");
  EXPECT_EQ(data_.Field(1), "2");
  EXPECT_EQ(data_.Field(4), "1");
  EXPECT_THROW(data_.Field(0), RecordError);
  EXPECT_THROW(data_.Field(5), RecordError);
  EXPECT_THROW(data_.Field("Price"), RecordError);
}

TEST_F(RecordDataTest, AMissingFileFindsNothing) {
  open("paths.isd").SetCriteria(R"(Field("Hypername") = "~DPOI14")");
  data_.FindFirst();
  EXPECT_TRUE(data_.NoMatch());
  EXPECT_EQ(data_.FieldCount(), 0);
  EXPECT_EQ(data_.Field("Location"), "");
  data_.Refresh();
  EXPECT_FALSE(data_.HasRecord());
}

TEST_F(RecordDataTest, RefusesCriteriaThatNameNoFieldAndValuesThatCouldReachTheQuery) {
  write("catalog.isd", kCatalog);
  open("catalog.isd").SetCriteria(R"(Field("Colour") = "Red")");
  EXPECT_THROW(data_.FindFirst(), RecordError);
  data_.SetCriteria(R"(Field("Item") = "x' OR 1=1; DROP TABLE records; --")");
  data_.FindFirst();
  EXPECT_TRUE(data_.NoMatch());
  data_.SetCriteria(R"(Field("Item") = "Boots")");
  data_.FindFirst();
  EXPECT_EQ(data_.Field("ID"), " 3");
}

const QStringList kTrophyFields{"Animaltype", "Hunter", "Size", "Weight", "Area",
                                "Weapon",     "Range",  "Time", "Skill"};

void appendTrophy(RecordData& book, const QString& species, const QString& hunter) {
  book.Refresh();
  book.AddNew();
  for (const QString& field : kTrophyFields) book.SetField(field, field + "?");
  book.SetField("Animaltype", species);
  book.SetField("Hunter", hunter);
  book.Update();
}

TEST_F(RecordDataTest, TheFirstAppendCreatesTheFileAndEveryAppendSurvivesReopening) {
  open("trophy.isd");
  appendTrophy(data_, "Elk", "Ann");
  EXPECT_EQ(data_.Field("Hunter"), "Ann") << "the new record is current";
  appendTrophy(data_, "Bison", "Bo");
  appendTrophy(data_, "Elk", "Cy");
  data_.Close();

  RecordData reopened;
  reopened.SetDatabaseName("d:\\dbase\\TROPHY.ISD");
  reopened.SetCriteria(R"(Field("Animaltype") = "Elk")");
  reopened.FindFirst();
  EXPECT_EQ(reopened.FieldNames(), kTrophyFields);
  QStringList hunters;
  for (; !reopened.NoMatch(); reopened.FindNext()) hunters << reopened.Field(2);
  EXPECT_EQ(hunters, QStringList({"Ann", "Cy"}));
}

TEST_F(RecordDataTest, AFailedAppendLeavesTheFileAsItWas) {
  write("trophy.isd", {{"Animaltype", "Hunter"}, {{"Elk", "Ann"}}});
  open("trophy.isd").AddNew();
  data_.SetField("Animaltype", "Bison");
  data_.SetField("Colour", "brown");
  EXPECT_THROW(data_.Update(), RecordError);
  EXPECT_EQ(platform::readRecordFile(files_->resolve("D:\\Dbase\\trophy.isd")).rows.size(), 1);
  EXPECT_THROW(data_.SetField("Hunter", "Bo"), RecordError) << "the failed record was dropped";
}

TEST_F(RecordDataTest, RefreshSeesWhatAnotherControlAppended) {
  write("trophy.isd", {{"Animaltype", "Hunter"}, {{"Elk", "Ann"}}});
  open("trophy.isd").SetCriteria(R"(Field("Animaltype") = "Bison")");
  data_.FindFirst();
  EXPECT_TRUE(data_.NoMatch());

  RecordData other;
  other.SetDatabaseName("D:\\Dbase\\trophy.isd");
  other.AddNew();
  other.SetField("Hunter", "Bo");
  other.SetField("Animaltype", "Bison");
  other.Update();

  data_.Refresh();
  EXPECT_EQ(data_.Field("Hunter"), "Ann") << "refresh makes the first record current";
  data_.FindFirst();
  EXPECT_EQ(data_.Field("Hunter"), "Bo");
}

}  // namespace
