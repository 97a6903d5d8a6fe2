#include "sample/Names.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace sample {

namespace {

/// The names of a region, each a list of words.
struct Region
{
    int share; ///< of the shop's clients, in percent
    const char* men;
    const char* women;
    const char* families;
    const char* menMiddle;
    const char* womenMiddle;
};

constexpr Region regions[] = {
    {34,
     "Ajay Anil Ashok Bhanwar Chandresh Dinesh Gajendra Gopal Hemant Jagdish Kailash Kishan Lokesh Mahendra "
     "Madan Mukesh Naresh Omprakash Pawan Prahlad Rajendra Ramesh Ratan Sanjay Suresh Vijendra",
     "Aarti Anita Bhavna Chandrakala Deepti Geeta Hemlata Indu Jyoti Kavita Kiran Lalita Madhu Manju Mamta "
     "Nirmala Pooja Pushpa Rekha Sangeeta Santosh Sarita Seema Shakuntala Sunita Usha",
     "Agarwal Bairwa Bansal Bhargava Chaturvedi Choudhary Gaur Goyal Gurjar Jangid Joshi Kumawat Mathur "
     "Meena "
     "Pareek Purohit Rathore Saini Sharma Shekhawat Soni Swami Tanwar Vyas",
     "Kumar Lal Chand Singh", "Devi Kumari Rani Bai"},
    {14,
     "Abhishek Alok Arvind Brijesh Devendra Girish Harish Kapil Mohit Nitin Prakash Praveen Rajeev Rakesh "
     "Sandeep Shailesh Sudhir Umesh Vikas Vinod",
     "Alka Archana Babita Garima Kusum Meenakshi Neelam Neha Poonam Preeti Ragini Ritu Sadhana Shalini "
     "Shobha "
     "Sushma Swati Vandana Varsha Vineeta",
     "Awasthi Bajpai Dubey Dwivedi Garg Gupta Jain Maurya Mishra Nigam Pandey Pathak Rastogi Saxena Shukla "
     "Srivastava Tiwari Tripathi Verma Yadav",
     "Kumar Prasad Narayan", "Devi Rani Kumari"},
    {10,
     "Amarjit Balwinder Charanjit Daljit Gurpreet Harjinder Harpreet Inderjit Jaspal Kulwant Lakhwinder "
     "Manjit Navdeep Paramjit Ranjit Satnam Sukhdev Tejinder",
     "Amandeep Baljeet Gurleen Harsimran Jasleen Jaswinder Kamaljeet Kiranjot Manpreet Navneet Parminder "
     "Rajwinder Ravinder Sandeep Simran Sukhjit",
     "Aulakh Bajwa Bedi Bhatia Chadha Dhaliwal Gill Grewal Kohli Malhotra Narula Sandhu Sahni Sethi Sidhu "
     "Sodhi",
     "Singh", "Kaur"},
    {8,
     "Bhavesh Chirag Dhaval Harshad Hitesh Jayesh Jignesh Ketan Kirit Mehul Nilesh Paresh Pranav Rahul "
     "Tushar "
     "Vipul",
     "Alpa Bhumika Chetna Darshana Falguni Hetal Jigna Kinjal Krupa Mittal Nisha Payal Rupal Sejal Trupti "
     "Urvashi",
     "Bhatt Chauhan Dave Desai Doshi Joshi Kothari Mehta Pandya Parekh Patel Shah Solanki Thakkar Trivedi "
     "Vaghela",
     "Kantilal Ramnik Jayant", "Ben Kumari"},
    {7,
     "Ajinkya Amol Avinash Dattatray Ganesh Mangesh Nikhil Prashant Rohan Sagar Sameer Shrikant Sunil "
     "Vaibhav "
     "Vilas Yogesh",
     "Anagha Ashwini Jayashree Kalpana Madhuri Manasi Medha Mrunal Pallavi Prachi Rohini Sayali Shubhangi "
     "Snehal "
     "Sulabha Vaishali",
     "Bhosale Deshmukh Deshpande Gokhale Jadhav Joglekar Kale Kulkarni Naik Patil Pawar Phadke Sawant Shinde "
     "Shirke Wagh",
     "Vasant Madhav Dinkar", "Vasant Madhav Dinkar"},
    {6,
     "Abhirup Anirban Arindam Debashish Dipankar Gautam Indranil Kaushik Partha Prosenjit Sandip Shubhankar "
     "Sourav Sukanta Tapan Utpal",
     "Ananya Barnali Debjani Ishita Jhuma Keya Madhumita Moumita Paromita Rituparna Rupa Sharmila Sohini "
     "Sudeshna Tanushree Tumpa",
     "Banerjee Basu Bhattacharya Biswas Chakraborty Das Dutta Ghosh Guha Kundu Majumdar Mitra Mukherjee "
     "Nandi "
     "Roy Sarkar",
     "Kumar Chandra Nath", "Rani Devi"},
    {5,
     "Aravind Balaji Ganesan Jagannathan Karthik Mahesh Murali Natarajan Prabhu Raghavan Sathish Senthil "
     "Sivakumar Subramanian Vignesh Venkatesh",
     "Akila Bhuvana Chitra Gayathri Geetha Kalyani Lakshmi Meera Nithya Padma Revathi Saraswathi Shanthi "
     "Sudha Uma Vasanthi",
     "Annamalai Chidambaram Gopalan Govindarajan Iyengar Iyer Krishnan Mudaliar Palani Parthasarathy "
     "Ramaswamy Sundaram Thirumalai Varadarajan Venkataraman Viswanathan",
     "K. R. S.", "K. R. S."},
    {4,
     "Ajith Anoop Biju Dileep Harikrishnan Jayan Krishnadas Manu Rajesh Ratheesh Santhosh Sreejith Sudheer "
     "Unnikrishnan Vinod Vishnu",
     "Anjana Asha Bindu Deepa Indira Jaya Latha Leela Maya Parvathy Radhika Rema Sindhu Sreeja Sreelatha "
     "Vineetha",
     "Kaimal Kurup Marar Menon Nair Nambiar Namboothiri Panicker Pillai Poduval Thampi Unnithan Varma "
     "Warrier",
     "K. P. V.", "K. P. V."},
    {4,
     "Anjaneyulu Bhaskar Chalapathi Kesava Krishnamurthy Mallikarjun Nagaraj Narasimha Phani Raghu "
     "Ramakrishna "
     "Ravi Shankar Sridhar Srinivas Vamsi",
     "Anuradha Bharathi Hymavathi Kavitha Madhavi Padmaja Prameela Rajani Rama Sailaja Sirisha Sravani "
     "Sujatha "
     "Swapna Vani Vijaya",
     "Chowdary Gowda Hegde Kamath Murthy Naidu Prabhu Raju Rao Reddy Setty Somayaji Shenoy Upadhya Varma "
     "Yerram",
     "Venkata Sai Naga", "Lakshmi Sai Naga"},
    {6,
     "Abrar Ashfaq Farhan Haider Iftekhar Ishtiaq Javed Kamran Khalid Mohsin Nadeem Naushad Parvez Rafiq "
     "Rizwan "
     "Shahid Tariq Wasim",
     "Afsana Farzana Ghazala Hina Mehrunissa Nagma Nasreen Parveen Rehana Rukhsana Sabiha Salma Shabnam "
     "Shaheen Tabassum Yasmeen",
     "Ahmed Ali Ansari Baig Farooqui Ghouri Hashmi Husain Kazmi Khan Mansoori Naqvi Pathan Qureshi Rizvi "
     "Sheikh Siddiqui Usmani",
     "Mohammed Abdul Iqbal", "Bano Begum Jahan"},
    {2, "Agnelo Alwyn Anthony Clement Denzil Edwin Gerard Joaquim Leslie Melwyn Oscar Savio Trevor Wilfred",
     "Beatrice Carmen Celine Daphne Flavia Gladys Irene Lorna Melinda Noreen Philomena Rosalind Sybil "
     "Winifred",
     "Almeida Braganza Carvalho Correia Dias Fernandes Furtado Gomes Lobo Mascarenhas Menezes Noronha Pinto "
     "Rebello",
     "A. J. M.", "A. J. M."},
};

constexpr const char* tailorMen =
    "Abdul Bansi Chhotu Dhanna Girdhari Hanif Ismail Jugal Kalu Madan Mohan Munna Nathu "
    "Peeru Ramzan Ramesh Salim Shyam Sohan Yusuf";
constexpr const char* tailorWomen = "Ameena Bhanwari Gulab Kamla Lali Munni Ramkali Shanti Sajjan Zubeida";
constexpr const char* tailorFamilies =
    "Chhipa Darzi Das Lal Mohammed Namdev Prajapat Rangrez Sen Sheikh Tailor Tank Vaishnav";

constexpr const char* localities[] = {
    "Johari Bazaar", "Bapu Nagar",      "Malviya Nagar",     "Vaishali Nagar", "Raja Park", "Adarsh Nagar",
    "C-Scheme",      "Mansarovar",      "Jhotwara",          "Shastri Nagar",  "Chandpole", "Tonk Road",
    "Sodala",        "Vidyadhar Nagar", "Pratap Nagar",      "Bani Park",      "Ghat Gate", "Durgapura",
    "Tilak Nagar",   "Jawahar Nagar",   "Kishanpole Bazaar", "Sanganer",       "Murlipura", "Gopalpura"};

struct Town
{
    const char* name;
    const char* state;
};

constexpr Town townsNear[] = {{"Ajmer", "Rajasthan"},    {"Dausa", "Rajasthan"},  {"Tonk", "Rajasthan"},
                              {"Sikar", "Rajasthan"},    {"Alwar", "Rajasthan"},  {"Kota", "Rajasthan"},
                              {"Agra", "Uttar Pradesh"}, {"Gurugram", "Haryana"}, {"Delhi", "Delhi"}};

QString word(Random& random, const char* list) { return random.pick(QString::fromLatin1(list).split(u' ')); }

const Region& region(Random& random)
{
    int throwOf = random.below(100);
    for (const Region& region : regions) {
        throwOf -= region.share;
        if (throwOf < 0)
            return region;
    }
    return regions[0];
}

QString initial(Random& random) { return QChar(u'A' + random.below(20)) + u"."_s; }

QString fullName(Random& random, const QString& given, const QString& middle, const QString& family,
                 int again)
{
    QStringList parts{given};
    if (again > 0)
        parts << middle;
    if (again > 1)
        parts << initial(random);
    parts << family;
    if (again > 3) // as the shop's register tells namesakes apart
        parts << u"(%1)"_s.arg(QLatin1String(random.pick(localities)));
    return parts.join(u' ');
}

} // namespace

Name personName(Random& random, int again)
{
    const Region& from = region(random);
    const bool woman = random.chance(46);
    const QString given = word(random, woman ? from.women : from.men);
    const QString middle = word(random, woman ? from.womenMiddle : from.menMiddle);
    const QString family = word(random, from.families);
    return {fullName(random, given, middle, family, again), woman};
}

Name workerName(Random& random, int again)
{
    const bool woman = random.chance(20);
    const QString given = word(random, woman ? tailorWomen : tailorMen);
    const QString family = word(random, tailorFamilies);
    return {fullName(random, given, initial(random), family, again), woman};
}

Place place(Random& random)
{
    const QString locality = QLatin1String(random.pick(localities));
    const QString house = QString::number(random.between(1, 280));
    if (random.chance(82))
        return {house + u", "_s + locality, u"Jaipur"_s, u"Rajasthan"_s};
    const Town& town = random.pick(townsNear);
    return {house + u", Station Road"_s, QLatin1String(town.name), QLatin1String(town.state)};
}

QString mobile(Random& random)
{
    static constexpr const char* starts[] = {"98290", "94140", "97820", "99280",
                                             "70140", "63750", "88520", "76650"};
    const QString number = QLatin1String(random.pick(starts)) + QString::number(random.between(10000, 99999));
    return random.chance(25) ? QString(u'0' + number) : number;
}

} // namespace sample
